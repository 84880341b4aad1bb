#include "batch/TextValues.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace vorlan {

namespace {

template <class T>
std::optional<T> parseNumber(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

/// Length of the UTF-8 sequence at the head of text, 0 when there is no valid one.
std::size_t utf8Length(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    if (first < 0x80) {
        return 1;
    }
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) {
            return 0;
        }
    }
    // Overlong forms, surrogates, and what lies beyond the last code point.
    const bool wrong = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xED && byte(1) > 0x9F) ||
                       (first == 0xF0 && byte(1) < 0x90) || (first == 0xF4 && byte(1) > 0x8F);
    return wrong ? 0 : length;
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = utf8Length(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

// Windows-1252 from 0x80 to 0x9F; the five bytes without a character keep their number.
constexpr std::array<std::uint16_t, 32> kWindowsCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& out, unsigned code) {
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

}  // namespace

std::optional<double> parseReal(std::string_view text) {
    const std::optional<double> value = parseNumber<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<long long> parseInteger(std::string_view text) {
    return parseNumber<long long>(text);
}

std::vector<std::string> splitText(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (std::size_t from = 0;;) {
        const std::size_t to = text.find(separator, from);
        parts.emplace_back(text.substr(from, to == std::string_view::npos ? to : to - from));
        if (to == std::string_view::npos) {
            return parts;
        }
        from = to + 1;
    }
}

std::optional<std::vector<double>> parseReals(std::string_view text, std::size_t count) {
    std::vector<double> values;
    for (const std::string& part : splitText(text, ',')) {
        const std::optional<double> value = parseReal(part);
        if (!value) {
            return std::nullopt;
        }
        values.push_back(*value);
    }
    return values.size() == count ? std::optional(std::move(values)) : std::nullopt;
}

int componentOfLetter(std::string_view letter) {
    const std::size_t at = letter.size() == 1 ? std::string_view("uvwUVW").find(letter) : std::string_view::npos;
    return at == std::string_view::npos ? -1 : static_cast<int>(at % 3);
}

std::optional<PictureSize> parsePictureSize(std::string_view text) {
    const std::vector<std::string> sides = splitText(text, 'x');
    if (sides.size() != 2) {
        return std::nullopt;
    }
    const std::optional<long long> width = parseInteger(sides[0]);
    const std::optional<long long> height = parseInteger(sides[1]);
    const auto fits = [](std::optional<long long> side) {
        return side && *side >= 1 && *side <= PictureSize::kLargest;
    };
    if (!fits(width) || !fits(height)) {
        return std::nullopt;
    }
    return PictureSize{static_cast<int>(*width), static_cast<int>(*height)};
}

std::string nameAsUtf8(const std::string& bytes) {
    if (isUtf8(bytes)) {
        return bytes;
    }
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool special = byte >= 0x80 && byte < 0xA0;
        appendUtf8(text, special ? kWindowsCharacters[byte - 0x80U] : byte);
    }
    return text;
}

}  // namespace vorlan
