#include "model/Printable.h"

#include <algorithm>

namespace vorlan {

namespace {

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

}  // namespace

std::string printable(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
        // U+0080 to U+009F are two bytes of UTF-8.
        const bool high = byte(i) == 0xC2 && i + 1 < text.size() && byte(i + 1) >= 0x80 && byte(i + 1) < 0xA0;
        result += isControl(text[i]) || high ? '?' : text[i];
        i += high ? 1 : 0;
    }
    return result;
}

std::string nameForFiles(std::string_view text) {
    std::string result(text);
    std::replace_if(result.begin(), result.end(), isControl, '?');
    return result;
}

}  // namespace vorlan
