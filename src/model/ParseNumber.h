#pragma once

#include <charconv>
#include <string_view>
#include <system_error>

namespace vorlan {

/// Reads the whole text as a number in C notation, whatever the locale; one '+' may stand before it.
/// errc::invalid_argument when the text is not a number, errc::result_out_of_range when the type cannot hold it.
template <class Value>
std::errc parseNumber(std::string_view text, Value& value) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return stop == end ? error : std::errc::invalid_argument;
}

}  // namespace vorlan
