#pragma once

#include <string>

namespace vorlan {

/// printf into a string. Numbers are written in the C locale: nothing in the program sets another LC_NUMERIC.
[[gnu::format(printf, 1, 2)]] std::string formatted(const char* format, ...);

/// "%.<digits>f" for a reader: neither a zero nor what is not a number has a sign.
std::string numberText(double value, int digits);
/// The same for a text that printf has made of a number.
std::string withoutEmptySign(std::string number);

/// A text of the model for display, UTF-8: its bytes as they are when they are valid UTF-8, else read as Windows-1252.
std::string utf8Text(const std::string& bytes);

/// Appends what printf's "%.<digits>f" writes in the C locale, whatever locale is set; much faster in long columns.
void appendFixed(std::string& text, double value, int digits);

}  // namespace vorlan
