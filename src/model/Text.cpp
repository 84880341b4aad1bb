#include "model/Text.h"

#include <array>
#include <charconv>
#include <cstdarg>
#include <cstdio>

namespace vorlan {

std::string formatted(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    return text;
}

void appendFixed(std::string& text, double value, int digits) {
    // Sign, 309 digits of the largest double, point, decimals.
    std::array<char, 400> buffer;
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, digits);
    if (error == std::errc()) {
        text.append(buffer.data(), end);
    }
}

}  // namespace vorlan
