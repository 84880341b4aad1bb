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

/// The stamp of what is at path, links followed; nothing where there is no file or it cannot be looked at.
std::optional<FileStamp> fileStampOf(const std::filesystem::path& path);

}  // namespace vorlan
