#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

namespace vorlan {

/// The whole content of a file, uninitialised memory filled by plain reads.
class FileContent {
  public:
    FileContent(std::unique_ptr<std::byte[]> bytes, std::size_t size) : bytes_(std::move(bytes)), size_(size) {}
    std::span<const std::byte> bytes() const { return {bytes_.get(), size_}; }
    std::string_view text() const { return {reinterpret_cast<const char*>(bytes_.get()), size_}; }

  private:
    std::unique_ptr<std::byte[]> bytes_;
    std::size_t size_;
};

/// Reads a regular file. FileError of kind Missing, NotAFile or Unreadable; an empty file is no error here.
FileContent readFile(const std::filesystem::path& path);

}  // namespace vorlan
