#include "io/TableText.h"

#include <algorithm>
#include <array>

#include "model/Printable.h"

namespace vorlan {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::size_t kLongestShown = 40;

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view unquoted(std::string_view field) {
    field = trimmed(field);
    if (field.size() >= 2 && field.front() == '"' && field.back() == '"') {
        return trimmed(field.substr(1, field.size() - 2));
    }
    return field;
}

constexpr std::array<std::string_view, 7> kSpreadsheetErrors = {"#N/A",  "#DIV/0!", "#VALUE!", "#NUM!",
                                                                "#REF!", "#NAME?",  "#NULL!"};
constexpr std::string_view kFieldEnds = ",;\t \"";

/// Where the comment of a line begins; npos without one.
std::size_t commentIn(std::string_view line) {
    for (std::size_t at = line.find('#'); at != std::string_view::npos; at = line.find('#', at + 1)) {
        const bool first = at == 0 || kFieldEnds.find(line[at - 1]) != std::string_view::npos;
        const std::size_t end = std::min(line.find_first_of(kFieldEnds, at), line.size());
        if (!first || !isSpreadsheetError(line.substr(at, end - at))) {
            return at;
        }
    }
    return std::string_view::npos;
}

}  // namespace

bool isSpreadsheetError(std::string_view field) {
    return std::find(kSpreadsheetErrors.begin(), kSpreadsheetErrors.end(), field) != kSpreadsheetErrors.end();
}

TableLines::TableLines(std::string_view text) : rest_(text) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (rest_.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
        rest_.remove_prefix(kByteOrderMark.size());
    }
}

bool TableLines::next() {
    while (!rest_.empty()) {
        const std::size_t end = rest_.find_first_of("\r\n");
        line_ = rest_.substr(0, end);
        if (end == std::string_view::npos) {
            rest_ = {};
        } else {
            rest_.remove_prefix(rest_.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
        }
        ++number_;
        line_ = line_.substr(0, commentIn(line_));
        const std::string_view blanks = separator_ == '\t' ? " " : kBlanks;
        if (line_.find_first_not_of(blanks) != std::string_view::npos) {
            return true;
        }
    }
    line_ = {};
    return false;
}

char TableLines::detectSeparator() {
    for (const char candidate : {';', ',', '\t'}) {
        if (trimmed(line_).find(candidate) != std::string_view::npos) {
            return separator_ = candidate;
        }
    }
    return separator_ = ' ';
}

const std::vector<std::string_view>& TableLines::fields() {
    fields_.clear();
    if (separator_ == ' ') {
        for (std::size_t at = 0;
             fields_.size() <= kMostFields && (at = line_.find_first_not_of(kBlanks, at)) != std::string_view::npos;) {
            const std::size_t end = std::min(line_.find_first_of(kBlanks, at), line_.size());
            fields_.push_back(unquoted(line_.substr(at, end - at)));
            at = end;
        }
        return fields_;
    }
    for (std::size_t at = 0; fields_.size() <= kMostFields;) {
        const std::size_t end = line_.find(separator_, at);
        fields_.push_back(unquoted(line_.substr(at, end - at)));
        if (end == std::string_view::npos) {
            break;
        }
        at = end + 1;
    }
    return fields_;
}

std::string shownField(std::string_view field) {
    return "\"" + printable(field.substr(0, kLongestShown)) + (field.size() > kLongestShown ? "...\"" : "\"");
}

}  // namespace vorlan
