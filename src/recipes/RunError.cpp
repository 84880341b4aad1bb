#include "recipes/RunError.h"

namespace vorlan {

std::string textOf(const FileError& error) {
    const std::string text = error.what();
    const std::string path = error.path().string();
    return text.find(path) == std::string::npos ? path + ": " + text : text;
}

}  // namespace vorlan
