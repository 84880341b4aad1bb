#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "plot/CScreenUtils.h"

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

}  // namespace

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

TEST(ScreenUtils, KnowsThePlotAreaAndItsXRange) {
    const CScreenUtils g = geometry(ScaleType::Linear);
    EXPECT_TRUE(g.contains(50, 280));
    EXPECT_TRUE(g.contains(450, 40));
    EXPECT_FALSE(g.contains(49, 100));
    EXPECT_FALSE(g.contains(100, 281));
    EXPECT_TRUE(g.overXRange(450));
    EXPECT_FALSE(g.overXRange(451));
}
