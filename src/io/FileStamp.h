#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace vorlan {

/// What tells that a file was written again: the time of its last change and its size, bytes.
struct FileStamp {
    std::filesystem::file_time_type time;
    std::uintmax_t size;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// A file as it was when it was read or written last; its stamp is missing where that is not known.
struct StampedFile {
    std::filesystem::path path;
    std::optional<FileStamp> stamp = {};
};

/// The stamp of what is at path, links followed; nothing where there is no file or it cannot be looked at.
std::optional<FileStamp> fileStampOf(const std::filesystem::path& path);

}  // namespace vorlan
