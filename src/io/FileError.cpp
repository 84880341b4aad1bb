#include "io/FileError.h"

namespace vorlan {

FileError FileError::cannotRead(Kind kind, const std::filesystem::path& path, const std::string& reason) {
    return {kind, path, "File cannot be read: " + path.string() + " (" + reason + ")", reason};
}

FileError FileError::cannotWrite(Kind kind, const std::filesystem::path& path, const std::string& reason) {
    return {kind, path, "File cannot be written: " + path.string() + " (" + reason + ")", reason};
}

}  // namespace vorlan
