#include "plot/STable.h"

#include <gtest/gtest.h>

#include "model/Archive.h"
#include "model/Errors.h"
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

TEST(STable, IndexesAndFormatsAreChecked) {
    STable table(statistics());
    EXPECT_EQ(table.cell(0, 1), "2.50");
    EXPECT_EQ(table.cell(0, 3), "");
    EXPECT_THROW(table.cell(2, 0), InvalidArgument);
    EXPECT_THROW(table.cell(0, 4), InvalidArgument);
    EXPECT_THROW(table.cell(-1, 0), InvalidArgument);
    EXPECT_THROW(table.header(5), InvalidArgument);
    EXPECT_THROW(table.rowTitle(2), InvalidArgument);
    table.formats[1] = "%.3e";
    EXPECT_EQ(table.cell(0, 1), "2.500e+00");
    table.formats[1] = "%s%n";
    EXPECT_EQ(table.cell(0, 1), "2.50");
}
