#include "model/Printable.h"

namespace vorlan {

std::string printable(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
        // U+0080 to U+009F are two bytes of UTF-8.
        const bool high = byte(i) == 0xC2 && i + 1 < text.size() && byte(i + 1) >= 0x80 && byte(i + 1) < 0xA0;
        result += byte(i) < 0x20 || byte(i) == 0x7F || high ? '?' : text[i];
        i += high ? 1 : 0;
    }
    return result;
}

}  // namespace vorlan
