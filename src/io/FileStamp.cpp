#include "io/FileStamp.h"

namespace vorlan {

std::optional<FileStamp> fileStampOf(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::file_time_type time = std::filesystem::last_write_time(path, error);
    if (error) {
        return std::nullopt;
    }
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error) {
        return std::nullopt;
    }
    return FileStamp{time, size};
}

}  // namespace vorlan
