#include "plot/STable.h"

#include <gtest/gtest.h>

#include <array>

#include "plot/FixedMeasure.h"

using namespace vorlan;

namespace {

constexpr Box kPane{0, 0, 500, 330};

TableContent statistics() {
    TableContent content;
    content.title = "    Main";
    content.headers = {"  ", "Mean", "Variance", "Skewness", "Kurtosis"};
    content.rows = {{"Sampled U", {1.005, 2.5, -0.125}}, {"Modified U", {1.0, 2.0, 3.0, 4.0}}};
    return content;
}

TableShapes shapesOf(const TableContent& content, const Box& pane = kPane) {
    STable table(content);
    table.fitInto(pane, FixedMeasure());
    return table.shapes(pane, FixedMeasure());
}

}  // namespace

TEST(STable, ManyRowsShrinkAndNeverGoUnnoticed) {
    TableContent content = statistics();
    content.rows.resize(16, content.rows[0]);
    EXPECT_LT(shapesOf(content).texts[0].share, 1.0);
    // Whatever the height: either all rows are in the pane or the table says that they are not.
    bool complete = false;
    for (int height = 20; height < 450; ++height) {
        const Box pane{0, 0, 500, height};
        const TableShapes shapes = shapesOf(content, pane);
        ASSERT_EQ(shapes.rules.size(), 16U);
        EXPECT_EQ(shapes.complete, shapes.rules.back().from.y <= height) << height;
        EXPECT_GE(shapes.complete, complete) << "a higher pane holds what a lower one does: " << height;
        complete = shapes.complete;
    }
    EXPECT_TRUE(complete);
    EXPECT_FALSE(shapesOf(statistics(), {0, 0, 20, 330}).complete) << "no room for a single letter";
}

namespace {

/// Letters of different widths; "f" before "i" is narrower than alone.
class KernedMeasure : public FixedMeasure {
  public:
    int width(const std::string& text, const FontDescription& font, double share) const override {
        ++calls;
        int width = FixedMeasure::width(text, font, share);
        for (std::size_t i = 0; i < text.size(); ++i) {
            width += text[i] == 'w' ? 5 : text[i] == 'f' && i + 1 < text.size() && text[i + 1] == 'i' ? -7 : 0;
        }
        return width;
    }
    mutable int calls = 0;
};

}  // namespace

TEST(Shortened, IsTheLongestBeginningThatFitsFoundWithFewMeasurements) {
    KernedMeasure measure;
    const FontDescription font;
    std::string text;
    for (int i = 0; i < 400; ++i) {
        text += std::array{"w", "f", "i", "\u00E4", "fi", "n"}[static_cast<std::size_t>(i * i % 31 % 6)];
    }
    for (int width = -1; width < 3000; width += 7) {
        std::string expected = text;
        for (std::size_t length = text.size(); measure.width(expected, font, 1.0) > width && length-- > 0;) {
            expected = (text[length] & 0xC0) == 0x80 ? expected : text.substr(0, length) + "\u2026";
        }
        expected = measure.width(expected, font, 1.0) > width ? "" : expected;
        EXPECT_EQ(shortened(text, font, width, measure), expected) << width;
    }
    measure.calls = 0;
    EXPECT_FALSE(shortened(std::string(100000, 'n'), font, 600, measure).empty());
    EXPECT_LT(measure.calls, 20);
}
