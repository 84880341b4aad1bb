// What a figure must not do, whatever the data: cover them, leave them out unsaid, label its marks wrongly.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "plot/FixedMeasure.h"
#include "plot/PolylineEnvelope.h"
#include "plot/SPlotFrame.h"
#include "plot/SeriesShapes.h"

namespace vorlan::test {
namespace {

constexpr Box kPanes[] = {{0, 0, 300, 200}, {0, 0, 640, 480}, {10, 20, 1930, 1100}};

Diagram diagramOf(const std::vector<std::vector<double>>& values, SeriesStyle style = SeriesStyle::Line) {
    Diagram diagram;
    diagram.frame.plotTitle = "Title";
    diagram.frame.yTitle = "Velocity,cm/s";
    constexpr const char* names[] = {"Ux", "Uy", "Uz"};
    for (std::size_t i = 0; i < values.size(); ++i) {
        PlotSeries series;
        series.y = values[i];
        series.x.step = 0.37;
        series.attributes.style = style;
        series.attributes.legendText = names[i];
        if (style == SeriesStyle::Bars) {
            for (std::size_t k = 0; k <= values[i].size(); ++k) {
                series.x.values.push_back(static_cast<double>(k));
            }
        }
        diagram.plot.series.push_back(series);
    }
    return diagram;
}

FrameLayout layoutOf(const Diagram& diagram, const Box& pane = kPanes[1]) {
    return SPlotFrame(diagram, FixedMeasure(), 1.0).layout(pane);
}

bool covered(const Diagram& diagram, const FrameLayout& layout) {
    const Box& box = layout.legend.box;
    const CScreenUtils& g = layout.geometry;
    const Box inside{box.left, box.top, box.right - 1, box.bottom - 1};
    for (const PlotSeries& series : diagram.plot.series) {
        const SeriesStyle style = series.attributes.style;
        for (const std::vector<Spot>& part : fullPolyline(series, g).parts) {
            for (std::size_t i = 0; i < part.size(); ++i) {
                const bool marker = style != SeriesStyle::Line && markerBox(part[i], 5).overlaps(box);
                const bool line = style != SeriesStyle::Markers && style != SeriesStyle::Bars && i > 0 &&
                                  clippedLine({part[i - 1], part[i]}, inside);
                if (marker || line) {
                    return true;
                }
            }
        }
    }
    return false;
}

std::vector<double> wave(double height, int shape) {
    std::vector<double> values;
    for (int i = 0; i < 400; ++i) {
        const double t = i / 399.0;
        values.push_back(height * (shape == 0 ? std::sin(40.0 * t) : shape == 1 ? 1.0 - t : t * t * t));
    }
    return values;
}

TEST(Figures, LegendCoversNoData) {
    int inside = 0;
    int outside = 0;
    for (const SeriesStyle style :
         {SeriesStyle::Line, SeriesStyle::Markers, SeriesStyle::LineAndMarkers, SeriesStyle::Bars}) {
        for (int shape = 0; shape < 3; ++shape) {
            for (const Box& pane : kPanes) {
                const Diagram diagram = diagramOf({wave(1.0, shape), wave(0.4, shape)}, style);
                const FrameLayout layout = layoutOf(diagram, pane);
                ASSERT_EQ(layout.state, FrameLayout::State::Drawn);
                ASSERT_FALSE(layout.legend.empty());
                EXPECT_TRUE(pane.encloses(layout.legend.box));
                EXPECT_FALSE(covered(diagram, layout)) << shape << " in " << pane.right;
                for (const PlacedText& text : layout.texts) {
                    EXPECT_FALSE(text.box.overlaps(layout.legend.box)) << text.text;
                }
                ++(layout.legend.inPlotArea ? inside : outside);
            }
        }
    }
    EXPECT_GT(inside, 5) << "free corners are used";
    EXPECT_GT(outside, 5);
}

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

TEST(Figures, KeepEverythingApartInEveryStyle) {
    for (const ScaleType scale :
         {ScaleType::Linear, ScaleType::Logarithmic, ScaleType::LogXLinearY, ScaleType::LinearXLogY}) {
        for (const int frameStyle : {0, 1}) {
            for (const int legend : {0, 1, 2}) {
                for (const Box& pane : {Box{0, 0, 500, 330}, Box{20, 400, 1020, 700}, Box{0, 0, 260, 200}}) {
                    Diagram diagram = diagramOf({{1.0, 2000.0, 0.03, 7.0, 300.0}});
                    diagram.frame.xTitle = "Time, s";
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

TEST(Figures, LegendCoversNoTriangle) {
    Diagram diagram = diagramOf({wave(1.0, 1)});
    for (const double from : {10.0, 130.0}) {
        diagram.triangles = {{from, from + 25.0, 1.15, -0.01, "-5/3"}};
        EXPECT_EQ(layoutOf(diagram).legend.inPlotArea, from == 10.0);
        diagram.triangles[0].held = true;
        EXPECT_TRUE(layoutOf(diagram).legend.inPlotArea);
    }
}

TEST(Figures, LabelsTellTheirMarks) {
    for (const double height : {0.1, 0.7, 3.0, 12.5, 640.0, 4e-5}) {
        for (const int digits : {0, 1, 2}) {
            Diagram diagram = diagramOf({{0.0, height, -height / 3.0}});
            diagram.frame.yDigits = diagram.frame.xDigits = digits;
            diagram.usualDigits = {digits, digits};
            const FrameLayout layout = layoutOf(diagram);
            for (const SAxis& axis : layout.axes) {
                double value = axis.minimum;
                for (const PlacedText& label : axis.linearLabels(FixedMeasure()).texts) {
                    EXPECT_NEAR(std::strtod(label.text.c_str(), nullptr), value, axis.markStep * 0.0201) << height;
                    EXPECT_NE(label.text, "-0.0");
                    value += axis.markStep;
                }
                EXPECT_GE(axis.decimalDigits, digits);
            }
            diagram.usualDigits = {digits + 1, digits + 1};
            EXPECT_EQ(layoutOf(diagram).axes[1].decimalDigits, digits) << "the user's digits stay";
        }
    }
}

std::vector<std::string> notesOf(const FrameLayout& layout) {
    std::vector<std::string> notes;
    for (const PlacedText& text : layout.texts) {
        if (text.text.find(": ") != std::string::npos) {
            notes.push_back(text.text);
        }
    }
    return notes;
}

TEST(Figures, SeriesThatAreLeftOutAreNamed) {
    // A negative maximum is rounded down, past the upper series.
    Diagram diagram = diagramOf({{-2.0, -1.4, -1.9}, {-0.33, -0.5, -0.4}, {-0.35, -0.45, -0.6}});
    const FrameLayout layout = layoutOf(diagram);
    EXPECT_EQ(notesOf(layout), std::vector<std::string>{"\u25b2 Uy, Uz: up to -0.33"});
    ASSERT_TRUE(layout.geometry.wider.yMax);
    diagram.frame.yMaxMode = 1;
    diagram.frame.yMax = *layout.geometry.wider.yMax;
    EXPECT_GT(diagram.frame.yMax, -0.33);
    EXPECT_TRUE(notesOf(layoutOf(diagram)).empty());
    EXPECT_FALSE(layoutOf(diagram).geometry.wider.yMax);
    // The user's limits are meant, unless they leave nothing of a series.
    diagram.frame.yMinMode = 1;
    diagram.frame.yMin = -0.42;
    diagram.frame.yMax = 0.0;
    EXPECT_EQ(notesOf(layoutOf(diagram)), std::vector<std::string>{"\u25bc Ux: down to -2.000"});
    diagram.plot.series[1].y.assign(3, std::nan(""));
    EXPECT_EQ(notesOf(layoutOf(diagram)).size(), 2U);
}

TEST(Figures, BarsWithoutHeightAreNamed) {
    const auto notes = [](double height) {
        Diagram diagram = diagramOf({{0.0, height, 0.0}, {0.0, 1.0, 0.5}}, SeriesStyle::Bars);
        diagram.frame.yMinMode = 1;
        return notesOf(layoutOf(diagram));
    };
    EXPECT_EQ(notes(0.0), std::vector<std::string>{"\u25bc Ux: no bar above 0.0"});
    EXPECT_TRUE(notes(0.2).empty());
}

TEST(Figures, LogarithmicLimitsStayAsGiven) {
    for (const auto& [lower, upper] : {std::pair{0.03, 20.0}, {20.0, 0.03}, {0.1, 100.0}, {2.0, 8.0}}) {
        Diagram diagram = diagramOf({{0.05, 3.0, 15.0}});
        diagram.allowedScales = {ScaleType::LinearXLogY};
        diagram.frame.yMinMode = diagram.frame.yMaxMode = 1;
        diagram.frame.yMin = lower;
        diagram.frame.yMax = upper;
        const FrameLayout layout = layoutOf(diagram);
        ASSERT_EQ(layout.state, FrameLayout::State::Drawn);
        const CScreenUtils& g = layout.geometry;
        EXPECT_NEAR(g.yValue(g.originY), lower, lower * 1e-9);
        EXPECT_NEAR(g.yValue(g.originY - g.height), upper, upper * 1e-9);
        // A mark for every power of ten inside, and ten units of ticks between them.
        for (const Line& mark : layout.axes[1].marks()) {
            const double decade = std::log10(g.yValue(mark.from.y));
            EXPECT_NEAR(decade, std::round(decade), 1.5 / std::fabs(g.yScale)) << lower;
        }
        const double decades = std::fabs(std::log10(upper / lower));
        EXPECT_NEAR(static_cast<double>(layout.axes[1].logarithmicTicks().size()), 9.0 * decades, 6.0);
        EXPECT_EQ(layout.axes[1].marks().size(), lower == 2.0 ? 0U : decades > 2.9 ? 4U : 3U);
    }
}

TEST(Figures, LongCaptionsAreBrokenIntoLines) {
    Diagram diagram = diagramOf({{1.0, 2.0}});
    diagram.frame.plotTitle = "Sampled velocities of the long flume, 3 samples replaced";
    std::string all;
    for (const PlacedText& text : layoutOf(diagram, {0, 0, 200, 300}).texts) {
        all +=
            diagram.frame.plotTitle.find(text.text) != std::string::npos && text.text.size() > 5 ? text.text + " " : "";
    }
    EXPECT_EQ(all, diagram.frame.plotTitle + " ");
    EXPECT_EQ(wrapped("  ", {}, 100, FixedMeasure(), 3).size(), 0U);
    EXPECT_EQ(wrapped("abcdefghijklmnopqrst", {}, 60, FixedMeasure(), 3), std::vector<std::string>{"abcdefghi\u2026"});
}

}  // namespace
}  // namespace vorlan::test
