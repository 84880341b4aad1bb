#include "model/Text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <limits>

#include "model/Index.h"

namespace vorlan {

std::string formatted(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string text(length > 0 ? asSize(length) : 0, '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    return text;
}

std::string numberText(double value, int digits) {
    return withoutEmptySign(formatted("%.*f", digits, value));
}

std::string withoutEmptySign(std::string number) {
    // inf keeps its sign: it says on which side.
    const bool empty = number.find_first_of("123456789i") == std::string::npos;
    if (empty && number.starts_with('-')) {
        number.erase(0, 1);
    }
    return number;
}

namespace {

constexpr std::array<double, 8> kPowersOfTen = {1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7};
constexpr double kExactIntegers = 4503599627370496.0;  // 2^52

// The decimals of a value whose last digit is beyond doubt. The product of value and power is off by at most half a
// unit in its last place: away from a tie by more than that, it rounds to the digit that the exact value rounds to.
bool appendRounded(std::string& text, double value, int digits) {
    if (digits < 1 || digits >= asInt(kPowersOfTen.size())) {
        return false;
    }
    const double scaled = std::fabs(value) * kPowersOfTen[asSize(digits)];
    if (!(scaled < kExactIntegers)) {
        return false;
    }
    auto whole = static_cast<std::uint64_t>(scaled);
    const double rest = scaled - static_cast<double>(whole) - 0.5;
    if (std::fabs(rest) <= scaled * std::numeric_limits<double>::epsilon()) {
        return false;
    }
    whole += rest > 0.0 ? 1 : 0;
    std::array<char, 24> buffer;
    char* const end = buffer.data() + buffer.size();
    char* first = end;
    for (int i = 0; i < digits || whole > 0 || i == digits; ++i) {
        if (i == digits) {
            *--first = '.';
        }
        *--first = static_cast<char>('0' + whole % 10);
        whole /= 10;
    }
    if (std::signbit(value)) {
        *--first = '-';
    }
    text.append(first, end);
    return true;
}

}  // namespace

void appendFixed(std::string& text, double value, int digits) {
    if (appendRounded(text, value, digits)) {
        return;
    }
    // Sign, 309 digits of the largest double, point, decimals.
    std::array<char, 400> buffer;
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, digits);
    if (error == std::errc()) {
        text.append(buffer.data(), end);
    }
}

}  // namespace vorlan
