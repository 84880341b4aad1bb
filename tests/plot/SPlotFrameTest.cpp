#include "plot/SPlotFrame.h"

#include <gtest/gtest.h>

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
