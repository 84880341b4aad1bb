#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

namespace vorlan {

/// A file that could not be read or written. what() is the text for the user.
class FileError : public std::runtime_error {
  public:
    enum class Kind {
        Missing,     ///< no such file or folder
        NotAFile,    ///< a folder, a device or a pipe where a file is wanted
        Unreadable,  ///< permission or device error while reading
        Empty,       ///< no bytes at all
        EndOfFile,   ///< the file ends before what it announces; offset() tells where
        Format,      ///< bytes that no such file holds; offset() tells where
        Unwritable,  ///< permission, full disk or device error while writing
    };

    FileError(Kind kind, std::filesystem::path path, const std::string& text, std::string reason = {},
              std::optional<std::size_t> offset = {})
        : std::runtime_error(text), kind_(kind), path_(std::move(path)), reason_(std::move(reason)), offset_(offset) {}

    /// "File cannot be read: <path> (<reason>)".
    static FileError cannotRead(Kind kind, const std::filesystem::path& path, const std::string& reason);
    /// "File cannot be written: <path> (<reason>)".
    static FileError cannotWrite(Kind kind, const std::filesystem::path& path, const std::string& reason);

    Kind kind() const { return kind_; }
    const std::filesystem::path& path() const { return path_; }
    /// The cause alone, in words; may be empty.
    const std::string& reason() const { return reason_; }
    /// Byte offset of the fault, counted from 0, for errors inside a file.
    std::optional<std::size_t> offset() const { return offset_; }

  private:
    Kind kind_;
    std::filesystem::path path_;
    std::string reason_;
    std::optional<std::size_t> offset_;
};

}  // namespace vorlan
