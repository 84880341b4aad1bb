#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vorlan {

/// Some lines of a delimited text as a person looks at them before it is read.
struct TablePreview {
    struct Row {
        std::size_t line;  ///< in the text, from 1
        std::vector<std::string> fields;
    };

    char separator = ' ';            ///< ';', ',', tab, or ' ' for runs of blanks
    std::size_t columns = 0;         ///< fields of the first line with content
    std::vector<std::string> names;  ///< of the columns as the header has them; empty without a header
    std::vector<Row> rows;           ///< below the header
};

/// Looks at a text as parseDelimitedTable() takes it apart: at most most rows, the first of them in the given line or
/// below it. Header and separator are always those of the first line with content. Never fails; texts are UTF-8.
TablePreview previewTable(std::string_view text, std::size_t firstLine = 1, std::size_t most = 60);

}  // namespace vorlan
