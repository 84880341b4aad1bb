#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace vorlan {

/// What tells that a file was written again.
struct FileStamp {
    std::filesystem::file_time_type time;
    std::uintmax_t size;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// Nothing while there is no such file.
std::optional<FileStamp> fileStampOf(const std::filesystem::path& path);

}  // namespace vorlan
