#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "model/Archive.h"
#include "plot/AxisLimits.h"
#include "plot/CScreenUtils.h"
#include "plot/FixedMeasure.h"
#include "plot/NiceNumbers.h"
#include "plot/SAxis.h"
#include "plot/STable.h"

using namespace vorlan;

namespace {

CScreenUtils geometry(ScaleType type) {
    CScreenUtils g;
    g.originX = 50;
    g.originY = 280;
    g.width = 400;
    g.height = 240;
    g.scaleType = type;
    g.xMin = g.logX() ? 0.01 : -20.0;
    g.xMax = g.logX() ? 100.0 : 60.0;
    g.xScale = g.logX() ? 100.0 : 80.0 / 400;
    g.yMin = g.logY() ? 0.1 : -1.5;
    g.yMax = g.logY() ? 100.0 : 3.3;
    g.yScale = g.logY() ? 80.0 : 4.8 / 240;
    return g;
}

SAxis axis(AxisSide side) {
    SAxis a;
    a.side = static_cast<std::int32_t>(side);
    a.originX = 100;
    a.originY = 200;
    a.markCount = 2;
    a.pixelsPerMark = 40;
    a.length = 80;
    a.minimum = -1.0;
    a.maximum = 1.0;
    a.markStep = 1.0;
    a.gridLength = 60;
    return a;
}

}  // namespace

TEST(NiceNumbers, ChoosesTheStepOfEachInterval) {
    constexpr struct {
        double mantissa;
        double step;
    } rows[] = {{0.5, 0.5},    {1.0, 1.0},    {1.4999, 1.0}, {1.5, 2.0},    {2.4999, 2.0},
                {2.5, 2.5},    {3.4999, 2.5}, {3.5, 4.0},    {4.4999, 4.0}, {4.5, 5.0},
                {7.4999, 5.0}, {7.5, 7.5},    {7.999, 7.5},  {8.0, 10.0},   {10.0, 10.0}};
    for (const auto& row : rows) {
        EXPECT_EQ(niceMantissa(row.mantissa), row.step) << row.mantissa;
    }
    EXPECT_DOUBLE_EQ(niceStep(0.0037), 0.004);
    EXPECT_DOUBLE_EQ(niceStep(780.0), 750.0);
}

TEST(NiceNumbers, RoundingEndsForValuesThatNoSumReaches) {
    EXPECT_LE(lowerLimit(1e18, 1.0), 1e18);
    EXPECT_GE(upperLimit(1e18, 1.0), 1e18);
    EXPECT_GE(upperLimit(1e300, 1e-300), 1e300);
    EXPECT_FALSE(std::isfinite(upperLimit(INFINITY, 1.0)));
    EXPECT_EQ(upperLimit(2.0, 0.0), 2.0);
}

TEST(AxisLimits, AGivenStepThatIsUselessGivesWayToTheAutomaticOne) {
    for (const double useless : {0.0, -1.0, std::nan(""), std::numeric_limits<double>::infinity(), 11.0, 1e-9}) {
        const AxisRule given{false, false, 0.0, 10.0, true, useless};
        EXPECT_TRUE(linearLimits(given, {0.0, 1.0}, kXManner).automaticStep) << useless;
    }
}

TEST(AxisLimits, ExtremeDataGiveAnAxisWithALength) {
    constexpr double huge = std::numeric_limits<double>::max();
    const DataInterval rows[] = {{-huge, huge}, {1e18, 1e18}, {1e9, 1e9 + 1e-7}, {0.0, 5e-324}, {-2147483648.0, 3.0}};
    for (const DataInterval& data : rows) {
        for (const AxisManner& manner : {kXManner, kYManner}) {
            const AxisLimits limits = linearLimits({true, true, 0.0, 0.0, false, 0.0}, data, manner).limits;
            EXPECT_LT(limits.lower, limits.upper) << data.lowest;
            EXPECT_TRUE(std::isfinite(limits.upper - limits.lower)) << data.lowest;
            EXPECT_GE(limits.marks, 1);
            EXPECT_LE(limits.marks, 20) << data.lowest;
        }
    }
    // All data below the given lower end.
    EXPECT_GT(linearLimits({false, true, 100.0, 0.0, false, 0.0}, {1.0, 5.0}, kXManner).limits.upper, 100.0);
}

TEST(SAxis, SurvivesAnArchive) {
    SAxis stored = axis(AxisSide::Right);
    stored.title = "Time, s";
    stored.labelFont.setHeight(20);
    stored.gridColour = 77;
    Archive out = Archive::storing();
    stored.Serialize(out);
    TableContent content;
    content.headers = {"  ", "Mean"};
    content.rows = {{"U", {4.0}}};
    STable(content).Serialize(out);
    Archive in = Archive::loading(out.bytes());
    SAxis loaded;
    loaded.Serialize(in);
    STable table;
    table.Serialize(in);
    EXPECT_EQ(in.remaining(), 0U);
    EXPECT_EQ(loaded.title, "Time, s");
    EXPECT_EQ(loaded.labelFont, stored.labelFont);
    EXPECT_EQ(loaded.gridColour, 77);
    EXPECT_EQ(loaded.maximum, 1.0);
    EXPECT_EQ(table.cell(0, 0), "4.00");
    EXPECT_EQ(table.header(1), "Mean");
    loaded.minimum = 0.0;
    loaded.maximum = 37.0;
    loaded.markStep = 5.0;
    loaded.recomputeMarks();
    EXPECT_EQ(loaded.markCount, 7);
    EXPECT_EQ(loaded.pixelsPerMark, 11);
}

TEST(ScreenUtils, PixelAndValueAreInverseWithinOnePixel) {
    for (const ScaleType type :
         {ScaleType::Linear, ScaleType::Logarithmic, ScaleType::LogXLinearY, ScaleType::LinearXLogY}) {
        const CScreenUtils g = geometry(type);
        EXPECT_DOUBLE_EQ(g.xValue(g.originX), g.xMin);
        EXPECT_NEAR(g.xValue(g.originX + g.width), g.xMax, 1e-9);
        EXPECT_NEAR(g.yValue(g.originY - g.height), g.yMax, 1e-9);
        for (int px = g.originX; px <= g.originX + g.width; ++px) {
            EXPECT_LE(std::abs(g.xPixel(g.xValue(px)) - px), 1);
        }
        for (int py = g.originY; py >= g.originY - g.height; --py) {
            EXPECT_LE(std::abs(g.yPixel(g.yValue(py)) - py), 1);
        }
    }
}

TEST(ScreenUtils, PixelsAreTruncatedAndClamped) {
    const CScreenUtils g = geometry(ScaleType::Linear);
    EXPECT_EQ(g.xPixel(-20.0 + 0.39), 51);
    EXPECT_EQ(g.xPixel(-20.0 - 0.39), 49);
    EXPECT_EQ(g.yPixel(-1.5 + 0.039), 279);
    EXPECT_EQ(g.xPixel(1e300), 50 + 1000000);
    EXPECT_EQ(g.xPixel(-1e300), 50 - 1000000);
    EXPECT_EQ(g.xPixel(std::numeric_limits<double>::quiet_NaN()), 50 - 1000000);
    const CScreenUtils logarithmic = geometry(ScaleType::Logarithmic);
    EXPECT_EQ(logarithmic.xPixel(0.0), 50 - 1000000);
    EXPECT_EQ(logarithmic.xPixel(-1.0), 50 - 1000000);
    EXPECT_EQ(logarithmic.xPixel(1.0), 250);
}
