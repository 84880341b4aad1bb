#include "plot/SeriesShapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "plot/DataExtent.h"
#include "plot/FixedMeasure.h"
#include "plot/PointNames.h"
#include "plot/PolylineEnvelope.h"
#include "plot/SlopeTriangle.h"

using namespace vorlan;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

CScreenUtils unitGeometry() {
    CScreenUtils g;
    g.originX = 10;
    g.originY = 110;
    g.width = 100;
    g.height = 100;
    g.xMax = g.yMax = 100.0;
    return g;
}

PlotSeries series(std::vector<double> x, std::vector<double> y) {
    PlotSeries s;
    s.x.values = std::move(x);
    s.y = std::move(y);
    return s;
}

}  // namespace

TEST(SeriesShapes, BarsStandOverTheirBins) {
    PlotSeries s = series({0.0, 20.0, 40.0}, {30.0, 50.0, 99.0});
    s.attributes.barGapPercent = 10.0;
    const std::vector<Box> bars = barBoxes(s, unitGeometry());
    ASSERT_EQ(bars.size(), 2U) << "the last value carries no bar";
    EXPECT_EQ(bars[0], (Box{11, 80, 29, 110}));
    EXPECT_EQ(bars[1], (Box{31, 60, 49, 110}));
    s.y.pop_back();
    EXPECT_EQ(barBoxes(s, unitGeometry()).size(), 2U) << "three edges, two bars";
}

TEST(SeriesShapes, ArrowHeads) {
    const Arrow arrow = arrowShape({0, 0}, {100, 0}, 8.0, 20.0);
    ASSERT_EQ(arrow.head.size(), 2U);
    EXPECT_EQ(arrow.head[0].from, (Spot{100, 0}));
    EXPECT_EQ(arrow.head[0].to, (Spot{92, 3}));
    EXPECT_EQ(arrow.head[1].to, (Spot{92, -3}));
    EXPECT_EQ(arrowShape({0, 0}, {0, -10}, 8.0, 0.0).head[0].to, (Spot{0, -5})) << "half of a short shaft";
    EXPECT_TRUE(arrowShape({0, 0}, {1, 1}, 8.0, 20.0).head.empty());

    PlotSeries s = series({50.0, 50.0, 500.0}, {50.0, 50.0, 50.0});
    s.vx = {10.0, kNaN, 1.0};
    s.vy = {5.0, 0.0, 1.0};
    s.attributes.arrowScale = 2.0;
    const std::vector<Arrow> all = arrows(s, unitGeometry(), 1.0);
    ASSERT_EQ(all.size(), 1U) << "no arrow for a missing component or a point outside";
    EXPECT_EQ(all[0].shaft, (Line{{60, 60}, {80, 50}}));
}

TEST(SeriesShapes, LinesBreakWhereAValueHasNoPlace) {
    const PlotSeries s = series({0.0, 1.0, 2.0, 3.0, 4.0}, {1.0, 2.0, kNaN, 4.0, 5.0});
    EXPECT_EQ(polylineEnvelope(s, unitGeometry()).parts.size(), 2U);
    CScreenUtils g = unitGeometry();
    g.scaleType = ScaleType::Logarithmic;
    g.xMin = g.yMin = 0.1;
    g.xScale = g.yScale = 30.0;
    const PlotSeries spectrum = series({0.0, 1.0, 2.0, 3.0}, {5.0, 5.0, 0.0, 4.0});
    const Polylines lines = polylineEnvelope(spectrum, g);
    ASSERT_EQ(lines.parts.size(), 2U);
    EXPECT_EQ(lines.parts[0].size(), 1U) << "frequency 0 is left out";
}

TEST(SeriesShapes, EnvelopeKeepsEveryPixelColumn) {
    PlotSeries s;
    s.x.step = 0.001;
    for (int i = 0; i < 100000; ++i) {
        s.y.push_back(50.0 + 49.0 * std::sin(i * 0.7) * std::cos(i * 0.00013));
    }
    const Polylines thin = polylineEnvelope(s, unitGeometry());
    const Polylines full = fullPolyline(s, unitGeometry());
    ASSERT_EQ(thin.parts.size(), 1U);
    EXPECT_LE(thin.parts[0].size(), 404U);
    EXPECT_TRUE(thin.dense);
    const auto spans = [](const std::vector<Spot>& line) {
        std::vector<std::pair<int, int>> result(120, {1000, -1000});
        for (const Spot& spot : line) {
            auto& span = result.at(static_cast<std::size_t>(spot.x));
            span = {std::min(span.first, spot.y), std::max(span.second, spot.y)};
        }
        return result;
    };
    EXPECT_EQ(spans(thin.parts[0]), spans(full.parts[0]));
    EXPECT_EQ(thin.parts[0].front(), full.parts[0].front());
    EXPECT_EQ(thin.parts[0].back(), full.parts[0].back());
}

TEST(SeriesShapes, EvenlySpacedPointsMakeTheSameLineAsListedOnes) {
    for (const double step : {0.001, 0.013, 0.7, 1.0, 30.0, -0.01, 0.0}) {
        PlotSeries spaced;
        spaced.x.start = step < 0.0 ? 90.0 : -3.0;
        spaced.x.step = step;
        PlotSeries listed;
        for (int i = 0; i < 5003; ++i) {
            spaced.y.push_back(i % 977 == 5 ? kNaN : 50.0 + 60.0 * std::sin(i * 1.3));
            listed.x.values.push_back(spaced.x.at(static_cast<std::size_t>(i)));
        }
        spaced.y[3000] = std::numeric_limits<double>::infinity();
        listed.y = spaced.y;
        for (const ScaleType type : {ScaleType::Linear, ScaleType::Logarithmic}) {
            CScreenUtils g = unitGeometry();
            g.scaleType = type;
            if (g.logX()) {
                g.xMin = g.yMin = 0.1;
                g.xScale = g.yScale = 30.0;
            }
            const auto parts = polylineEnvelope(listed, g).parts;
            EXPECT_EQ(polylineEnvelope(spaced, g).parts, parts) << step;
            PlotSeries summarised = spaced;
            summarised.blocks = ValueBlocks(summarised.y);
            EXPECT_EQ(polylineEnvelope(summarised, g).parts, parts) << step;
            const auto expected = dataExtent(SPlot{{listed}}, g.logX(), g.logY());
            const auto extent = dataExtent(SPlot{{summarised}}, g.logX(), g.logY());
            ASSERT_EQ(extent.has_value(), expected.has_value());
            if (extent) {
                EXPECT_EQ(extent->x.lowest, expected->x.lowest) << step;
                EXPECT_EQ(extent->x.highest, expected->x.highest) << step;
                EXPECT_EQ(extent->y.lowest, expected->y.lowest) << step;
                EXPECT_EQ(extent->y.highest, expected->y.highest) << step;
            }
        }
    }
}

TEST(SeriesShapes, LinesAreCutAtTheEdges) {
    const Box area{0, 0, 100, 100};
    EXPECT_EQ(clippedLine({{-50, 50}, {150, 50}}, area), (Line{{0, 50}, {100, 50}}));
    EXPECT_EQ(clippedLine({{50, -100}, {50, 300}}, area), (Line{{50, 0}, {50, 100}}));
    EXPECT_EQ(clippedLine({{10, 20}, {30, 40}}, area), (Line{{10, 20}, {30, 40}}));
    EXPECT_FALSE(clippedLine({{-10, 20}, {-1, 40}}, area));
    EXPECT_FALSE(clippedLine({{-50, 60}, {60, 170}}, area));
    const Polylines cut = clipped({{{{10, 10}, {200, 10}, {200, 50}, {10, 50}}}, false}, area);
    ASSERT_EQ(cut.parts.size(), 2U);
    EXPECT_EQ(cut.parts[1], (std::vector<Spot>{{100, 50}, {10, 50}}));
}

TEST(SeriesShapes, SlopeTrianglesFollowTheirPowerLaw) {
    CScreenUtils g = unitGeometry();
    g.xMin = g.yMin = 1.0;
    g.xScale = g.yScale = 40.0;
    g.scaleType = ScaleType::Logarithmic;
    const FixedMeasure measure;
    const SlopeTriangle triangle{2.0, 20.0, 64.0, -1.5, "-3/2"};
    const SlopeTriangleShape logarithmic = slopeTriangleShape(triangle, g, {}, measure, 1.0);
    const Spot begin{g.xPixel(2.0), g.yPixel(64.0)};
    const Spot end{g.xPixel(20.0), g.yPixel(64.0 * std::pow(10.0, -1.5))};
    EXPECT_EQ(logarithmic.slope, (std::vector<Spot>{begin, end}));
    EXPECT_EQ(logarithmic.legs, (std::vector<Spot>{begin, {end.x, begin.y}, end}));
    ASSERT_EQ(logarithmic.texts.size(), 1U);
    EXPECT_GT(logarithmic.texts[0].box.left, end.x);

    g.xMin = g.yMin = 0.0;
    g.xScale = g.yScale = 1.0;
    g.scaleType = ScaleType::Linear;
    const SlopeTriangleShape linear = slopeTriangleShape(triangle, g, {}, measure, 1.0);
    ASSERT_EQ(linear.slope.size(), 19U);
    for (const Spot& spot : linear.slope) {
        EXPECT_EQ(spot.y, 110 - static_cast<int>(64.0 * std::pow((spot.x - 10) / 2.0, -1.5)));
    }
    EXPECT_TRUE(slopeTriangleShape({0.0, 20.0, 64.0, -1.5, ""}, g, {}, measure, 1.0).slope.empty());
}
