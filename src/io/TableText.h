#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vorlan {

/// The lines of a text that hold something: without byte order mark, line ends (LF, CRLF or CR) and "#" comments.
class TableLines {
  public:
    explicit TableLines(std::string_view text);

    /// Takes the next line that is not blank. Tabs alone are content once they separate the fields.
    bool next();
    std::string_view line() const { return line_; }
    /// Number of the line taken last, from 1; 0 before the first.
    std::size_t number() const { return number_; }

    /// Semicolon, comma, tab or blank, as the current line has them.
    void detectSeparator();
    /// The fields of the current line, without blanks and quotes around them. Runs of blanks separate once.
    const std::vector<std::string_view>& fields();

  private:
    std::string_view rest_;
    std::string_view line_;
    std::size_t number_ = 0;
    char separator_ = ' ';
    std::vector<std::string_view> fields_;
};

/// A field as messages show it: in quotes, without control characters, at most 40 bytes.
std::string shownField(std::string_view field);

}  // namespace vorlan
