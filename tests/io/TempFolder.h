#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace vorlan::test {

/// A folder of its own that disappears with everything in it.
class TempFolder {
  public:
    TempFolder() {
        std::string name = testing::TempDir() + "vorlan-XXXXXX";
        path_ = ::mkdtemp(name.data());
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }
    /// Entries of the folder: leftovers show.
    std::size_t entries() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path_), {}));
    }

  private:
    std::filesystem::path path_;
};

inline void spill(const std::filesystem::path& path, std::string_view text) {
    std::ofstream stream(path, std::ios::binary);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
}

inline std::string slurp(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

template <class Bytes>
std::string_view asText(const Bytes& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace vorlan::test
