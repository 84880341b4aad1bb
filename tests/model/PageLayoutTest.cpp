#include "model/PageLayout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "model/Errors.h"

namespace vorlan {
namespace {

constexpr PaperSize kA4{21.0, 29.7};
constexpr PaperSize kA5{14.8, 21.0};
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Box {
    double left;
    double top;
    double width;
    double height;
};

/// Pages by hand: boxes in cm, in the order left top, left bottom, right top, right bottom, without those not printed.
struct PageCase {
    const char* what;
    PaperSize paper;
    void (*change)(PageAtrType&);
    double reduction;
    std::vector<Box> boxes;
};

const PageCase kPages[] = {
    {"default",
     kA4,
     [](PageAtrType&) {},
     1.0,
     {{2.5, 2.5, 16, 5}, {2.5, 8.5, 16, 5}, {2.5, 14.5, 16, 5}, {2.5, 20.5, 16, 5}}},
    {"unticked panes take no room",
     kA4,
     [](PageAtrType& p) { p.printLeftBottom = p.printRightTop = 0; },
     1.0,
     {{2.5, 2.5, 16, 5}, {2.5, 8.5, 16, 5}}},
    // 23 cm into 16 cm of height, 16 cm into 10.8 cm of width: the width decides.
    {"reduced into the width",
     kA5,
     [](PageAtrType&) {},
     10.8 / 16,
     {{2.5, 2.5, 10.8, 3.375}, {2.5, 6.55, 10.8, 3.375}, {2.5, 10.6, 10.8, 3.375}, {2.5, 14.65, 10.8, 3.375}}},
    // 33 cm into 17 cm of width; gaps shrink alike.
    {"two by two",
     kA4,
     [](PageAtrType& p) {
         p.layout = 0;
         p.innerMargin = 2.0;
     },
     0.5,
     {{2.5, 2.5, 8, 2.5}, {2.5, 6, 8, 2.5}, {11.5, 2.5, 8, 2.5}, {11.5, 6, 8, 2.5}}},
    {"rows and columns as large as their largest pane",
     kA4,
     [](PageAtrType& p) {
         p.layout = 0;
         p.leftTop = {3, 4};
         p.leftBottom = {5, 6};
         p.rightTop = {4, 7};
         p.rightBottom = {2, 5};
     },
     1.0,
     {{2.5, 2.5, 4, 3}, {2.5, 7.5, 6, 5}, {9.5, 2.5, 7, 4}, {9.5, 7.5, 5, 2}}},
    {"a column without panes vanishes",
     kA4,
     [](PageAtrType& p) { p.layout = p.printLeftTop = p.printLeftBottom = p.printRightBottom = 0; },
     1.0,
     {{2.5, 2.5, 16, 5}}},
    {"margins",
     {29.7, 21.0},
     [](PageAtrType& p) {
         p.leftMargin = 1.25;
         p.rightMargin = 0;
         p.topMargin = 3;
         p.bottomMargin = 0.5;
         p.printRightTop = p.printRightBottom = 0;
         p.leftBottom = {2.5, 8};
     },
     1.0,
     {{1.25, 3, 16, 5}, {1.25, 9, 8, 2.5}}},
};

TEST(PageLayout, PlacesPanesAsWorkedOutByHand) {
    for (const PageCase& row : kPages) {
        PageAtrType page;
        row.change(page);
        for (const double dpi : {72.0, 600.0}) {
            const PageLayout layout = layoutPage(page, row.paper, dpi);
            ASSERT_EQ(layout.panes.size(), row.boxes.size()) << row.what;
            EXPECT_NEAR(layout.reduction, row.reduction, 1e-12) << row.what;
            EXPECT_NEAR(layout.scale, 5.0 * dpi / 600 * row.reduction, 1e-9) << row.what;
            for (std::size_t i = 0; i < row.boxes.size(); ++i) {
                const PageBox& box = layout.panes[i].box;
                const double dots = dpi / 2.54;
                EXPECT_NEAR(box.left, row.boxes[i].left * dots, 1e-6) << row.what << i;
                EXPECT_NEAR(box.top, row.boxes[i].top * dots, 1e-6) << row.what << i;
                EXPECT_NEAR(box.width, row.boxes[i].width * dots, 1e-6) << row.what << i;
                EXPECT_NEAR(box.height, row.boxes[i].height * dots, 1e-6) << row.what << i;
            }
            EXPECT_NEAR(layout.header.height, page.topMargin * dpi / 2.54, 1e-6);
            EXPECT_NEAR(layout.footer.bottom(), row.paper.height * dpi / 2.54, 1e-6);
            EXPECT_NEAR(layout.footer.right(), (row.paper.width - page.rightMargin) * dpi / 2.54, 1e-6);
            EXPECT_NEAR(layout.marginScale, 5.0 * dpi / 600, 1e-12);
        }
    }
}

TEST(PageLayout, TellsWhichPanesDoNotFit) {
    PageAtrType page;
    page.rightBottom.height = 6.7;  // 24.7 cm in all, the room to the last digit
    EXPECT_EQ(layoutPage(page, kA4, 100).reduction, 1.0);
    EXPECT_TRUE(layoutPage(page, kA4, 100).panes.back().fits);
    page.leftBottom.width = 17.0;
    page.rightTop.width = 17.001;
    page.rightBottom.height = 7.0;
    std::vector<bool> fits;
    for (const PageLayout::PlacedPane& placed : layoutPage(page, kA4, 100).panes) {
        fits.push_back(placed.fits);
    }
    EXPECT_EQ(fits, (std::vector{true, true, false, false}));
}

TEST(PageLayout, RefusesPagesThatCannotBePrinted) {
    const struct {
        void (*change)(PageAtrType&);
        const char* field;
    } rows[] = {
        {[](PageAtrType& p) { p.printLeftTop = p.printLeftBottom = p.printRightTop = p.printRightBottom = 0; },
         "panes"},
        {[](PageAtrType& p) { p.leftBottom.height = 0.0; }, "left-bottom height"},
        {[](PageAtrType& p) { p.rightTop.width = -1.0; }, "right-top width"},
        {[](PageAtrType& p) { p.rightBottom.width = kNaN; }, "right-bottom width"},
        {[](PageAtrType& p) { p.rightMargin = -0.1; }, "right"},
        {[](PageAtrType& p) { p.bottomMargin = kNaN; }, "bottom"},
        {[](PageAtrType& p) { p.innerMargin = 1e9; }, "inner"},
        {[](PageAtrType& p) { p.fontScale = 0.0; }, "font_scale"},
        {[](PageAtrType& p) { p.leftMargin = 20.0; }, "left"},
        {[](PageAtrType& p) { p.topMargin = 27.2; }, "top"},
        {[](PageAtrType& p) { p.leftMargin = 18.9; }, "panes"},
        {[](PageAtrType& p) {
             p.header = "x";
             p.topMargin = 0.2;
         },
         "top"},
        {[](PageAtrType& p) { p.bottomMargin = 0.0; }, "bottom"},
    };
    for (const auto& row : rows) {
        PageAtrType page;
        row.change(page);
        EXPECT_EQ(refusalOf(page, kA4).field, row.field);
        EXPECT_THROW(layoutPage(page, kA4, 600), InvalidArgument);
    }
    PageAtrType unused;
    unused.printRightTop = 0;
    unused.rightTop = {0.0, kNaN};
    unused.footer = " ";
    unused.bottomMargin = 0.0;
    EXPECT_TRUE(refusalOf(unused, kA4).empty());
}

}  // namespace
}  // namespace vorlan
