#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace bench {

/// A folder of its own that goes with its owner, where TMPDIR says.
class Folder {
  public:
    Folder() : path_(std::filesystem::temp_directory_path() / ("vorlan-bench-" + std::to_string(::getpid()))) {
        std::filesystem::create_directories(path_);
    }
    ~Folder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace bench
