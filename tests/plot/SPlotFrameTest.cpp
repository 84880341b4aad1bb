#include "plot/SPlotFrame.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "plot/FixedMeasure.h"

using namespace vorlan;

namespace {

constexpr Box kPane{0, 0, 500, 330};

Diagram diagramOf(std::vector<double> y, double step = 1.0) {
    Diagram diagram;
    diagram.frame.plotTitle = "Title";
    diagram.frame.xTitle = "Time, s";
    diagram.frame.yTitle = "Velocity,cm/s";
    PlotSeries series;
    series.x.step = step;
    series.y = std::move(y);
    series.attributes.legendText = "Ux";
    diagram.plot.series.push_back(series);
    return diagram;
}

FrameLayout layoutOf(const Diagram& diagram, const Box& pane = kPane, double scale = 1.0) {
    const FixedMeasure measure(static_cast<int>(6 * scale), static_cast<int>(12 * scale));
    return SPlotFrame(diagram, measure, scale).layout(pane);
}

// Nothing outside the pane, no text over another or over the plot area.
void expectTidy(const FrameLayout& layout, const Box& pane) {
    const CScreenUtils& g = layout.geometry;
    const Box plotArea{g.originX + 1, g.originY - g.height + 1, g.originX + g.width, g.originY};
    for (std::size_t i = 0; i < layout.texts.size(); ++i) {
        const PlacedText& text = layout.texts[i];
        EXPECT_TRUE(pane.encloses(text.box)) << text.text;
        EXPECT_FALSE(plotArea.overlaps(text.box)) << text.text;
        for (std::size_t k = 0; k < i; ++k) {
            // An exponent belongs to the ten beside it.
            const bool sameLabel = text.share != 1.0 || layout.texts[k].share != 1.0;
            EXPECT_TRUE(sameLabel || !text.box.overlaps(layout.texts[k].box)) << text.text << layout.texts[k].text;
        }
    }
    for (const Line& line : layout.strokes) {
        for (const Spot& end : {line.from, line.to}) {
            EXPECT_TRUE(end.x >= pane.left && end.x < pane.right && end.y >= pane.top && end.y < pane.bottom);
        }
    }
}

}  // namespace

TEST(SPlotFrame, KeepsEverythingApartInEveryStyle) {
    for (const ScaleType scale :
         {ScaleType::Linear, ScaleType::Logarithmic, ScaleType::LogXLinearY, ScaleType::LinearXLogY}) {
        for (const int frameStyle : {0, 1}) {
            for (const int legend : {0, 1, 2}) {
                for (const Box& pane : {kPane, Box{20, 400, 1020, 700}, Box{0, 0, 260, 200}}) {
                    Diagram diagram = diagramOf({1.0, 2000.0, 0.03, 7.0, 300.0}, 0.5);
                    diagram.allowedScales = {scale};
                    diagram.frame.frameStyle = frameStyle;
                    diagram.frame.legendPosition = legend;
                    const FrameLayout layout = layoutOf(diagram, pane);
                    ASSERT_EQ(layout.state, FrameLayout::State::Drawn);
                    expectTidy(layout, pane);
                    EXPECT_EQ(layout.legend.empty(), legend == 2);
                    if (legend != 2) {
                        EXPECT_TRUE(pane.encloses(layout.legend.box));
                    }
                    EXPECT_EQ(layout.axes.size(), frameStyle == 1 ? 4U : 2U);
                }
            }
        }
    }
}

TEST(SPlotFrame, OutlandishAttributesAndValuesAreDrawn) {
    Diagram diagram = diagramOf({-2147483648.0, 0.0, std::numeric_limits<double>::infinity(), 5.0});
    FrameAttributesType& frame = diagram.frame;
    for (std::int32_t* word :
         {&frame.tickSize, &frame.markSize, &frame.ticksPerMark, &frame.xDigits, &frame.labelOffset, &frame.gridMode}) {
        *word = std::numeric_limits<std::int32_t>::min();
    }
    frame.xStepMode = 1;
    frame.xStep = 1e-7;
    frame.yStepMode = 1;
    frame.yStep = 1e5;
    FrameLayout layout = layoutOf(diagram);
    ASSERT_EQ(layout.state, FrameLayout::State::Drawn);
    EXPECT_LE(layout.geometry.yMin, -2147483648.0);
    frame.xMinMode = frame.xMaxMode = 1;
    frame.xMin = 50.0;
    frame.xMax = 0.0;
    frame.xStep = 10.0;
    layout = layoutOf(diagram);
    ASSERT_EQ(layout.state, FrameLayout::State::Drawn);
    EXPECT_EQ(layout.geometry.xPixel(0.0), layout.geometry.originX + layout.geometry.width) << "runs backward";
}

TEST(SLegend, SampleArrowsOfAnyLengthStayInTheLegend) {
    Diagram diagram = diagramOf({1.0, 2.0});
    PlotSeries& arrows = diagram.plot.series[0];
    arrows.attributes.style = SeriesStyle::Arrows;
    arrows.legendArrow = 10.0;
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double scale : {-infinity, -2147483648.0, 0.0, std::nan(""), 3.0, 2147483647.0, infinity}) {
        arrows.attributes.arrowScale = scale;
        const int length =
            placeLegend(diagram, LegendPosition::RightTop, 400, FixedMeasure(), 1.0).entries[0].sampleLength;
        EXPECT_EQ(length, scale == 3.0 ? 30 : scale > 3.0 ? 200 : 0) << scale;
    }
}
