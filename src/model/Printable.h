#pragma once

#include <string>
#include <string_view>

namespace vorlan {

/// A text as messages and pictures may hold it: every control character (U+0000 to U+001F, U+007F to U+009F) is a
/// question mark. Line ends, too; other bytes stay as they are.
std::string printable(std::string_view text);

/// A name as text files may hold it: U+0000 to U+001F and U+007F are question marks. Every other byte stays: it may be
/// a letter of an old text with one byte per letter.
std::string nameForFiles(std::string_view text);

}  // namespace vorlan
