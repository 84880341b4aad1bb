#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

#include "io/FileDescriptor.h"
#include "model/Archive.h"

namespace vorlan {

/// A regular file that is read from its first byte to its last. FileError of kind Missing, NotAFile or Unreadable.
class InputFile : public ByteSource {
  public:
    explicit InputFile(const std::filesystem::path& path);
    std::size_t size() const override { return size_; }
    std::size_t read(std::span<std::byte> bytes) override;

  private:
    std::filesystem::path path_;
    FileDescriptor file_;
    std::size_t size_ = 0;
};

/// The whole content of a file.
class FileContent {
  public:
    FileContent(std::unique_ptr<std::byte[]> bytes, std::size_t size) : bytes_(std::move(bytes)), size_(size) {}
    std::span<const std::byte> bytes() const { return {bytes_.get(), size_}; }
    std::string_view text() const { return {reinterpret_cast<const char*>(bytes_.get()), size_}; }

  private:
    std::unique_ptr<std::byte[]> bytes_;
    std::size_t size_;
};

/// Reads a regular file. FileError as InputFile; an empty file is no error here.
FileContent readFile(const std::filesystem::path& path);

}  // namespace vorlan
