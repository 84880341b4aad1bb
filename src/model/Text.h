#pragma once

#include <string>

namespace vorlan {

/// printf into a string. Numbers are written in the C locale: nothing in the program sets another LC_NUMERIC.
[[gnu::format(printf, 1, 2)]] std::string formatted(const char* format, ...);

}  // namespace vorlan
