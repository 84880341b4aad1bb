#include "io/TablePreview.h"

#include "io/DelimitedTable.h"
#include "io/TableText.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr std::size_t kMostColumns = 256;  // that a person looks at

std::vector<std::string> shownFields(TableLines& lines) {
    std::vector<std::string> shown;
    for (const std::string_view field : lines.fields()) {
        if (shown.size() == kMostColumns) {
            break;
        }
        shown.push_back(utf8Text(std::string(field)));
    }
    return shown;
}

}  // namespace

TablePreview previewTable(std::string_view text, std::size_t firstLine, std::size_t most) {
    TablePreview preview;
    TableLines lines(text);
    if (!lines.next()) {
        return preview;
    }
    preview.separator = lines.detectSeparator();
    std::vector<std::string> fields = shownFields(lines);
    preview.columns = fields.size();
    bool more = true;
    if (isTableHeader(lines.fields())) {
        preview.names = std::move(fields);
        more = lines.next();
    }
    for (; more && preview.rows.size() < most; more = lines.next()) {
        if (lines.number() >= firstLine) {
            preview.rows.push_back({lines.number(), shownFields(lines)});
        }
    }
    return preview;
}

}  // namespace vorlan
