#include "plot/STable.h"

#include <algorithm>
#include <cstdio>

#include "model/Archive.h"
#include "model/Errors.h"
#include "model/Index.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr double kSmallestShare = 0.6;
constexpr double kLeastShare = 0.3;  // for numbers, title and headers, which are not cut
constexpr double kShareStep = 0.02;
constexpr int kTextGap = 6;  // kept free beside a row title
constexpr char kDefaultFormat[] = "%.2f";

// "%.<digits><f, e or g>": only what takes exactly one double.
bool formatsOneNumber(const std::string& format) {
    const std::size_t last = format.size() - 1;
    return format.size() >= 4 && format.size() <= 5 && format.starts_with("%.") &&
           format.find_first_not_of("0123456789", 2) == last &&
           std::string("feg").find(format[last]) != std::string::npos;
}

void texts(Archive& archive, std::vector<std::string>& values) {
    values.resize(archive.count(values.size(), 1));
    for (std::string& value : values) {
        archive.value(value);
    }
}

const std::string& element(const std::vector<std::string>& values, int index) {
    if (index < 0 || asSize(index) >= values.size()) {
        throw InvalidArgument();
    }
    return values[asSize(index)];
}

// The end of a row title names the probe, so a title that is too wide loses its middle.
std::string shortenedInside(const std::string& text, const FontDescription& font, int width, const TextMeasure& measure,
                            double share) {
    if (measure.width(text, font, share) <= width) {
        return text;
    }
    const std::size_t comma = text.rfind(", ");
    if (comma == std::string::npos) {
        return shortened(text, font, width, measure, share);
    }
    const std::string tail = text.substr(comma);
    const std::string head =
        shortened(text.substr(0, comma), font, width - measure.width(tail, font, share), measure, share);
    return head.empty() ? shortened(text, font, width, measure, share) : head + tail;
}

}  // namespace

STable::STable(const TableContent& content)
    : title(content.title),
      headers(content.headers),
      formats(content.headers.empty() ? 0 : content.headers.size() - 1, content.numberFormat),
      note(content.note),
      font(content.font) {
    for (const TableContent::Row& row : content.rows) {
        rowTitles.push_back(row.title);
        rows.push_back(row.values);
        emptyCells.push_back(row.empty);
    }
}

void STable::Serialize(Archive& archive) {
    archive.value(title);
    texts(archive, headers);
    texts(archive, rowTitles);
    texts(archive, formats);
    rows.resize(archive.count(rows.size(), sizeof(std::int32_t)));
    for (std::vector<double>& row : rows) {
        row.resize(archive.count(row.size(), sizeof(double)));
        for (double& value : row) {
            archive.value(value);
        }
    }
    for (std::int32_t* v : {&left, &top, &tableWidth, &columnWidth, &rowHeight}) {
        archive.value(*v);
    }
    archive.raw(font.bytes().data(), FontDescription::kSize);
}

const std::string& STable::header(int column) const {
    return element(headers, column);
}

const std::string& STable::rowTitle(int row) const {
    return element(rowTitles, row);
}

bool STable::isEmptyCell(int row, std::size_t index) const {
    if (asSize(row) >= emptyCells.size()) {
        return false;
    }
    const std::vector<std::size_t>& empty = emptyCells[asSize(row)];
    return std::find(empty.begin(), empty.end(), index) != empty.end();
}

std::string STable::cell(int row, int column) const {
    if (row < 0 || asSize(row) >= rows.size() || column < 0 ||
        asSize(column) + 1 >= std::max<std::size_t>(headers.size(), 1)) {
        throw InvalidArgument();
    }
    const std::size_t index = asSize(column);
    const std::vector<double>& values = rows[asSize(row)];
    if (index >= values.size() || isEmptyCell(row, index)) {
        return {};
    }
    const bool usable = index < formats.size() && formatsOneNumber(formats[index]);
    const char* format = usable ? formats[index].c_str() : kDefaultFormat;
    char buffer[420];  // the longest double with two-digit precision has 410 characters
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::snprintf(buffer, sizeof buffer, format, values[index]);
#pragma GCC diagnostic pop
    return withoutEmptySign(buffer);
}

int STable::firstColumnWidth(const TextMeasure& measure, double share) const {
    int widest = 0;
    for (const std::string& text : rowTitles) {
        widest = std::max(widest, measure.width(text, font, share));
    }
    return std::clamp(widest + 2 * kTextGap, columnWidth, std::max(columnWidth, tableWidth / 2));
}

void STable::fitInto(const Box& box, const TextMeasure& measure) {
    left = box.left;
    top = box.top;
    tableWidth = box.width();
    columnWidth = tableWidth / asInt(std::max<std::size_t>(headers.size(), 1));
    rowHeight = measure.height(font, shareOfNumbers(fittingShare(box, measure), measure));
}

double STable::fittingShare(const Box& box, const TextMeasure& measure) const {
    const int lines = 3 + 2 * asInt(rows.size()) + (note.empty() ? 0 : 2);
    const auto needed = [&](double share) { return lines * measure.height(font, share); };
    if (needed(1.0) <= box.height()) {
        return 1.0;
    }
    double share = std::max(kSmallestShare, static_cast<double>(box.height()) / needed(1.0));
    // Heights are whole pixels: the rounded one can still be too high.
    while (needed(share) > box.height() && share > kSmallestShare) {
        share = std::max(kSmallestShare, share - kShareStep);
    }
    return share;
}

double STable::shareFor(const std::string& text, int width, double share, const TextMeasure& measure) const {
    while (share > kLeastShare && measure.width(text, font, share) > width) {
        share = std::max(kLeastShare, share - kShareStep);
    }
    return share;
}

double STable::shareOfNumbers(double share, const TextMeasure& measure) const {
    while (share > kLeastShare && !numbersFit(share, measure)) {
        share = std::max(kLeastShare, share - kShareStep);
    }
    return share;
}

int STable::valueColumnWidth(const TextMeasure& measure, double share) const {
    const int columns = asInt(headers.size());
    return columns > 1 ? (tableWidth - firstColumnWidth(measure, share)) / (columns - 1) : tableWidth;
}

bool STable::numbersFit(double share, const TextMeasure& measure) const {
    const int room = valueColumnWidth(measure, share) - kTextGap;
    for (int row = 0; row < asInt(rows.size()); ++row) {
        for (int column = 0; column + 1 < asInt(headers.size()); ++column) {
            if (measure.width(cell(row, column), font, share) > room) {
                return false;
            }
        }
    }
    return true;
}

TableShapes STable::shapes(const Box& box, const TextMeasure& measure) const {
    TableShapes result;
    const double share = shareOfNumbers(fittingShare(box, measure), measure);
    const int height = measure.height(font, share);
    const int firstWidth = firstColumnWidth(measure, share);
    const int columns = asInt(headers.size());
    const int otherWidth = valueColumnWidth(measure, share);
    const auto place = [&](const std::string& text, int columnLeft, int width, int y, double own) {
        const std::string shown = shortenedInside(text, font, width - kTextGap, measure, own);
        const int textWidth = measure.width(shown, font, own);
        const int x = columnLeft + width / 2 - textWidth / 2;
        const int ownTop = y + (height - measure.height(font, own)) / 2;
        if (!shown.empty()) {
            result.texts.push_back({shown, {x, ownTop, x + textWidth, ownTop + measure.height(font, own)}, font, own});
        } else if (!text.empty()) {
            result.complete = false;
        }
    };
    const auto add = [&](const std::string& text, int columnLeft, int width, int y) {
        place(text, columnLeft, width, y, share);
    };
    const auto addWhole = [&](const std::string& text, int columnLeft, int width, int y) {
        place(text, columnLeft, width, y, shareFor(text, width - kTextGap, share, measure));
    };
    const auto columnLeft = [&](int column) {
        return column == 0 ? left : left + firstWidth + (column - 1) * otherWidth;
    };
    const auto columnSpan = [&](int column) { return column == 0 ? firstWidth : otherWidth; };

    int y = top + rowHeight / 2;
    addWhole(title, left, tableWidth, y);
    y += rowHeight + rowHeight / 2;
    for (int column = 0; column < columns; ++column) {
        addWhole(header(column), columnLeft(column), columnSpan(column), y);
    }
    y += rowHeight;
    for (int row = 0; row < asInt(rows.size()); ++row) {
        y += rowHeight;
        add(rowTitle(row), columnLeft(0), columnSpan(0), y - rowHeight / 2);
        for (int column = 1; column < columns; ++column) {
            const std::string number = cell(row, column - 1);
            result.complete = result.complete && measure.width(number, font, share) <= otherWidth - kTextGap;
            add(number, columnLeft(column), columnSpan(column), y - rowHeight / 2);
        }
        y += rowHeight;
        result.rules.push_back({{left, y}, {left + tableWidth, y}});
    }
    if (!note.empty()) {
        addWhole(note, left, tableWidth, y + rowHeight / 2);
        y += 2 * rowHeight;
    }
    result.complete = result.complete && y <= box.bottom;
    return result;
}

std::string tabSeparated(const TableContent& content) {
    const STable table(content);
    std::string text;
    for (std::size_t column = 0; column < table.headers.size(); ++column) {
        text += (column == 0 ? "" : "\t") + table.headers[column];
    }
    text += '\n';
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        text += table.rowTitles[row];
        for (std::size_t column = 0; column < table.rows[row].size(); ++column) {
            text += '\t' + table.cell(asInt(row), asInt(column));
        }
        text += '\n';
    }
    return text;
}

}  // namespace vorlan
