#include <array>
#include <cstdint>

#include "model/Text.h"

namespace vorlan {

namespace {

// What Windows-1252 has at 0x80..0x9F; the five bytes it leaves undefined stay control characters.
constexpr std::array<std::uint16_t, 32> kWindows1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                        0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Length of the UTF-8 sequence at text[i], 0 when there is none.
std::size_t sequenceLength(const std::string& text, std::size_t i) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned lead = byte(i);
    if (lead < 0x80) {
        return 1;
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || i + length > text.size()) {
        return 0;
    }
    for (std::size_t k = 1; k < length; ++k) {
        if ((byte(i + k) & 0xC0U) != 0x80U) {
            return 0;
        }
    }
    const unsigned second = byte(i + 1);
    const bool overlongOrSurrogate = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
                                     (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
    return overlongOrSurrogate ? 0 : length;
}

bool isUtf8(const std::string& text) {
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = sequenceLength(text, i);
        if (length == 0) {
            return false;
        }
        i += length;
    }
    return true;
}

void appendUtf8(std::string& text, unsigned code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0U | (code >> 6U));
        text += static_cast<char>(0x80U | (code & 0x3FU));
    } else {
        text += static_cast<char>(0xE0U | (code >> 12U));
        text += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (code & 0x3FU));
    }
}

}  // namespace

std::string utf8Text(const std::string& bytes) {
    if (isUtf8(bytes)) {
        return bytes;
    }
    std::string text;
    for (const char c : bytes) {
        const unsigned byte = static_cast<unsigned char>(c);
        appendUtf8(text, byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80] : byte);
    }
    return text;
}

}  // namespace vorlan
