#pragma once

#include <string>
#include <vector>

#include "model/FontDescription.h"
#include "model/SObject.h"
#include "plot/Diagram.h"
#include "plot/Shapes.h"
#include "plot/TextMeasure.h"

namespace vorlan {

/// Texts and rules of a drawn table.
struct TableShapes {
    std::vector<PlacedText> texts;
    std::vector<Line> rules;
    bool complete = true;  ///< every row lies in the box and every text is there, be it shortened
};

/// A ruled text table. A row takes two row heights: the text stands in the middle of them, the rule below. Columns
/// are equally wide unless the row titles need more. Indexes outside the stored arrays raise InvalidArgument.
class STable : public SObject {
  public:
    std::string title;
    std::vector<std::string> headers;  ///< the first is that of the row titles
    std::vector<std::string> rowTitles;
    std::vector<std::string> formats;  ///< of the values, per column; "%.2f" where there is none
    std::vector<std::vector<double>> rows;
    std::vector<std::vector<std::size_t>> emptyCells;  ///< by row, see TableContent::Row::empty; not stored
    std::string note;                                  ///< below the rows; not stored
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t tableWidth = 0;
    std::int32_t columnWidth = 0;
    std::int32_t rowHeight = 0;
    FontDescription font;

    STable() = default;
    explicit STable(const TableContent& content);

    const char* ClassName() const override { return "STable"; }
    void Serialize(Archive& archive) override;

    const std::string& header(int column) const;
    const std::string& rowTitle(int row) const;
    /// Text of one value; column counts the values, not the row titles. Empty where the row has no value.
    std::string cell(int row, int column) const;

    /// Fills the geometry members for a box: columns as wide as it allows, rows as high as the text.
    void fitInto(const Box& box, const TextMeasure& measure);
    /// Share of the font's size at which every row fits the height of box; not below 0.6.
    double fittingShare(const Box& box, const TextMeasure& measure) const;
    /// Texts and rules in pixels, from the geometry members on. Every row has its rule, also below box where they do
    /// not fit; a text without room for a letter is left out and a number without room makes the table incomplete. See
    /// TableShapes::complete.
    TableShapes shapes(const Box& box, const TextMeasure& measure) const;

  private:
    bool isEmptyCell(int row, std::size_t index) const;
    /// share, or less where the text would not fit the width.
    double shareFor(const std::string& text, int width, double share, const TextMeasure& measure) const;
    /// share, or less where a number would not fit its column.
    double shareOfNumbers(double share, const TextMeasure& measure) const;
    bool numbersFit(double share, const TextMeasure& measure) const;
    int valueColumnWidth(const TextMeasure& measure, double share) const;
    int firstColumnWidth(const TextMeasure& measure, double share) const;
};

/// The headers and rows of a table as text: tabs between the cells, a line feed behind each row.
std::string tabSeparated(const TableContent& content);

}  // namespace vorlan
