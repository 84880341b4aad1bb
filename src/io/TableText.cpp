#include "io/TableText.h"

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

}  // namespace

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
        line_ = line_.substr(0, line_.find('#'));
        const std::string_view blanks = separator_ == '\t' ? " " : kBlanks;
        if (line_.find_first_not_of(blanks) != std::string_view::npos) {
            return true;
        }
    }
    line_ = {};
    return false;
}

void TableLines::detectSeparator() {
    for (const char candidate : {';', ',', '\t'}) {
        if (trimmed(line_).find(candidate) != std::string_view::npos) {
            separator_ = candidate;
            return;
        }
    }
    separator_ = ' ';
}

const std::vector<std::string_view>& TableLines::fields() {
    fields_.clear();
    if (separator_ == ' ') {
        for (std::size_t at = 0; (at = line_.find_first_not_of(kBlanks, at)) != std::string_view::npos;) {
            const std::size_t end = line_.find_first_of(kBlanks, at);
            fields_.push_back(unquoted(line_.substr(at, end - at)));
            at = end;
        }
        return fields_;
    }
    for (std::size_t at = 0;;) {
        const std::size_t end = line_.find(separator_, at);
        fields_.push_back(unquoted(line_.substr(at, end - at)));
        if (end == std::string_view::npos) {
            return fields_;
        }
        at = end + 1;
    }
}

std::string shownField(std::string_view field) {
    std::string shown = "\"";
    for (const char c : field.substr(0, kLongestShown)) {
        shown += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? '?' : c;
    }
    shown += field.size() > kLongestShown ? "...\"" : "\"";
    return shown;
}

}  // namespace vorlan
