#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vorlan {

/// The lines of a text that hold something: without byte order mark, line ends (LF, CRLF or CR) and "#" comments. A
/// field that a spreadsheet has filled with an error ("#N/A") begins no comment.
class TableLines {
  public:
    explicit TableLines(std::string_view text);

    /// Takes the next line that is not blank. Tabs alone are content once they separate the fields.
    bool next();
    std::string_view line() const { return line_; }
    /// Number of the line taken last, from 1; 0 before the first.
    std::size_t number() const { return number_; }

    /// Semicolon, comma, tab or blank, as the current line has them; returns it.
    char detectSeparator();
    /// The fields of the current line, without blanks and quotes around them. Runs of blanks separate once. At most one
    /// more than kMostFields: a line of separators costs no multiple of its length.
    const std::vector<std::string_view>& fields();
    static constexpr std::size_t kMostFields = 4096;

  private:
    std::string_view rest_;
    std::string_view line_;
    std::size_t number_ = 0;
    char separator_ = ' ';
    std::vector<std::string_view> fields_;
};

/// Whether a spreadsheet has written the field where a value is missing or wrong: "#N/A", "#DIV/0!" and the like.
bool isSpreadsheetError(std::string_view field);

/// A field as messages show it: in quotes, without control characters, at most 40 bytes.
std::string shownField(std::string_view field);

}  // namespace vorlan
