// Where the parts of diagrams, legends and tables lie, as approved texts, by a measure without fonts.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "Approved.h"
#include "model/Text.h"
#include "plot/FixedMeasure.h"
#include "plot/SPlotFrame.h"
#include "plot/STable.h"

namespace vorlan::test {
namespace {

std::string textOf(const Box& box) {
    return formatted("%d,%d..%d,%d", box.left, box.top, box.right, box.bottom);
}

std::string textOf(const std::vector<PlacedText>& texts) {
    std::string all;
    for (const PlacedText& text : texts) {
        all += "  \"" + text.text + "\" " + textOf(text.box) + (text.upward ? " upward" : "") +
               (text.share == 1.0 ? "" : formatted(" of %.2g", text.share)) + "\n";
    }
    return all;
}

/// Lines that begin at the same x or y and are equally long, together.
std::string textOf(const char* name, const std::vector<Line>& lines) {
    std::map<std::string, std::string> rows;
    for (const Line& line : lines) {
        const bool upright = line.from.x == line.to.x;
        const std::string kind = upright ? formatted("  %s y %d to %d at x", name, line.from.y, line.to.y)
                                         : formatted("  %s x %d to %d at y", name, line.from.x, line.to.x);
        rows[kind] += formatted(" %d", upright ? line.from.x : line.from.y);
    }
    std::string all;
    for (const auto& [kind, places] : rows) {
        all += kind + places + "\n";
    }
    return all;
}

std::string textOf(const SLegend& legend) {
    if (legend.empty()) {
        return "  no legend\n";
    }
    std::string all = "  legend " + textOf(legend.box) + "\n" + textOf(legend.title);
    for (const SLegend::Entry& entry : legend.entries) {
        all += formatted("  sample %d,%d of %d", entry.sampleStart.x, entry.sampleStart.y, entry.sampleLength) +
               textOf({entry.text});
    }
    return all;
}

std::string textOf(const FrameLayout& layout) {
    if (layout.state != FrameLayout::State::Drawn) {
        return layout.state == FrameLayout::State::NoData ? "  no data\n" : "  too small\n";
    }
    const CScreenUtils& g = layout.geometry;
    return formatted("  plot area %d x %d from %d,%d, scale %d\n", g.width, g.height, g.originX, g.originY,
                     static_cast<int>(g.scaleType)) +
           formatted("  x %.6g..%.6g by %.6g, %.6g\n", g.xMin, g.xMax, g.xStep, g.xScale) +
           formatted("  y %.6g..%.6g by %.6g, %.6g\n", g.yMin, g.yMax, g.yStep, g.yScale) +
           textOf("stroke", layout.strokes) + textOf("grid", layout.grid) + textOf(layout.texts) +
           textOf(layout.legend);
}

Diagram usual() {
    Diagram diagram;
    diagram.frame.plotTitle = "Sampled Velocities";
    diagram.frame.xTitle = "Time, s";
    diagram.frame.yTitle = "Velocity,cm/s";
    diagram.frame.xMinMode = 1;
    for (const char* legend : {"Ux", "Uy", ""}) {
        PlotSeries series;
        series.x.step = 9.3;
        series.y = {3.0, 5.5, 10.0, 0.5, 7.0};
        series.attributes.legendText = legend;
        diagram.plot.series.push_back(series);
    }
    return diagram;
}

TEST(Layouts, OfDiagrams) {
    struct Row {
        const char* name;
        std::function<void(Diagram&)> change;
        Box pane{0, 0, 400, 260};
        double scale = 1.0;
    };
    const auto scaled = [](ScaleType scale) {
        return [scale](Diagram& d) {
            d.allowedScales.push_back(scale);
            d.frame.scaleType = static_cast<std::int32_t>(scale);
            d.frame.gridMode = static_cast<std::int32_t>(GridMode::Ticks);
            d.frame.xMinMode = 0;
        };
    };
    const auto fullFrame = [](Diagram& d) {
        d.frame.frameStyle = 1;
        d.frame.markSize = 30;
        d.frame.gridMode = static_cast<std::int32_t>(GridMode::Both);
    };
    const auto empty = [](Diagram& d) {
        for (PlotSeries& series : d.plot.series) {
            series.y.clear();
        }
    };
    const Row rows[] = {
        {"usual", [](Diagram&) {}},
        {"both logarithmic", scaled(ScaleType::Logarithmic)},
        {"x logarithmic", scaled(ScaleType::LogXLinearY)},
        {"y logarithmic", scaled(ScaleType::LinearXLogY)},
        {"full frame, marks outside, all grid", fullFrame},
        {"full frame, marks inside, three ticks, legend below",
         [&](Diagram& d) {
             fullFrame(d);
             d.frame.tickOrientation = 0;
             d.frame.ticksPerMark = 3;
             d.frame.legendPosition = 0;
         }},
        {"full frame, marks inside",
         [&](Diagram& d) {
             fullFrame(d);
             d.frame.tickOrientation = 0;
             d.frame.gridMode = static_cast<std::int32_t>(GridMode::Marks);
         }},
        {"neither titles nor legend nor marks",
         [](Diagram& d) {
             d.frame.plotTitle = d.frame.xTitle = " ";
             d.frame.yTitle.clear();
             d.frame.legendPosition = 2;
             d.frame.markSize = 0;
         }},
        {"marks without titles",
         [](Diagram& d) {
             d.frame.plotTitle = d.frame.xTitle = d.frame.yTitle = "";
             d.frame.frameStyle = 1;
             d.frame.markSize = 40;
             d.frame.tickSize = 0;
         }},
        {"both ends from the data, three digits",
         [](Diagram& d) {
             d.frame.xMinMode = 0;
             d.frame.xDigits = 3;
             d.frame.yDigits = 0;
         }},
        {"time series from its start", [](Diagram& d) { d.duration = 60.0; }},
        {"time series whose switch frees both ends",
         [](Diagram& d) {
             d.duration = 60.0;
             d.frame.xMinMode = 0;
             d.frame.xMaxMode = 1;
             d.frame.xMax = 20.0;
         }},
        {"the user's ends and steps, backward",
         [](Diagram& d) {
             FrameAttributesType& f = d.frame;
             f.xMaxMode = f.yMinMode = f.yMaxMode = f.xStepMode = f.yStepMode = 1;
             f.xMin = 50.0;
             f.xMax = -10.0;
             f.xStep = 7.0;
             f.yMin = -1.5;
             f.yMax = 4.0;
             f.yStep = 0.05;
         }},
        {"numbers wider than the y axis has room",
         [](Diagram& d) {
             d.frame.yTitle.clear();
             d.frame.yDigits = 0;
             d.frame.xDigits = 9;
             d.plot.series[0].x.step = 1e6;
         }},
        {"titles that are too long",
         [](Diagram& d) {
             d.frame.plotTitle = d.frame.xTitle = std::string(50, 'p') + std::string(50, 'q');
             d.frame.yTitle = std::string(30, 'v') + std::string(30, 'w');
         }},
        {"a y title longer than the axis", [](Diagram& d) { d.frame.yTitle = std::string(38, 'v'); }},
        {"a legend too large for the plot area",
         [](Diagram& d) { d.plot.series[0].attributes.legendText = std::string(60, 'l'); }},
        {"arrows",
         [](Diagram& d) {
             PlotSeries& series = d.plot.series[0];
             series.attributes.style = SeriesStyle::Arrows;
             series.attributes.arrowScale = 5.0;
             series.legendArrow = 10.0;
             d.frame.scaleType = 1;
             d.allowedScales.push_back(ScaleType::Logarithmic);
         }},
        {"on paper", [](Diagram&) {}, {100, 200, 1700, 1240}, 4.0},
        {"no data", empty},
        {"as narrow as can be", [](Diagram&) {}, {0, 0, 135, 260}},
        {"too narrow", [](Diagram&) {}, {0, 0, 120, 260}},
        {"too low", [](Diagram&) {}, {0, 0, 400, 90}},
    };
    std::string all;
    for (const Row& row : rows) {
        Diagram diagram = usual();
        row.change(diagram);
        const FixedMeasure measure(static_cast<int>(6 * row.scale), static_cast<int>(12 * row.scale));
        all += std::string(row.name) + "\n" + textOf(SPlotFrame(diagram, measure, row.scale).layout(row.pane));
    }
    EXPECT_EQ(changeOfApproved("layouts", all), "");
}

TEST(Layouts, OfLegends) {
    std::string all;
    for (const auto& [position, width] : {std::pair{1, 400}, {1, 60}, {0, 400}, {0, 110}, {2, 400}}) {
        Diagram diagram = usual();
        diagram.frame.legendPosition = position;
        all += formatted("position %d in %d\n", position, width) +
               textOf(placeLegend(diagram, static_cast<LegendPosition>(position), width, FixedMeasure(), 1.0));
        diagram.frame.legendTitle = " ";
        all += "without a title\n" +
               textOf(placeLegend(diagram, static_cast<LegendPosition>(position), width, FixedMeasure(), 2.0));
    }
    EXPECT_EQ(changeOfApproved("legends", all), "");
}

TEST(Layouts, OfTables) {
    TableContent content;
    content.title = "    Main";
    content.headers = {"  ", "Mean", "Variance", "Skewness", "Kurtosis"};
    content.rows = {{"Sampled U", {1.005, 2.5, -0.125}}, {"Modified U", {1.0, 2.0, 3.0, 4.0}}};
    const auto textOfTable = [](const TableContent& table, const Box& box) {
        STable placed(table);
        placed.fitInto(box, FixedMeasure());
        const TableShapes shapes = placed.shapes(box, FixedMeasure());
        return (shapes.complete ? "table\n" : "incomplete table\n") + textOf("rule", shapes.rules) +
               textOf(shapes.texts);
    };
    std::string all = textOfTable(content, {10, 20, 510, 350}) + textOfTable(content, {0, 0, 60, 330});
    content.rows[0].title = "a measurement that somebody took far away down in the river, probe 1";
    content.rows.resize(7, content.rows[0]);
    all += textOfTable(content, {0, 0, 500, 150}) + textOfTable(content, {0, 0, 500, 100});
    content.rows.clear();
    all += textOfTable(content, {0, 0, 500, 330}) + textOfTable(TableContent(), {0, 0, 500, 330});
    EXPECT_EQ(changeOfApproved("tables", all), "");
}

/// Every way of ruling an axis by data of every kind.
TEST(Layouts, OfAxes) {
    const DataInterval intervals[] = {{0.0, 37.3}, {3.0, 10.0}, {3.0, 3.0},     {-9.0, -4.5},
                                      {0.0, 0.0},  {-0.02, 80}, {1e9, 1e9 + 5}, {-2147483648.0, 3.0}};
    std::string all;
    for (const DataInterval& data : intervals) {
        all += formatted("data %.12g..%.12g\n", data.lowest, data.highest);
        for (const AxisManner& manner : {kXManner, kYManner}) {
            for (const auto& [lower, upper] : {std::pair{true, true}, {true, false}, {false, true}, {false, false}}) {
                for (const double step : {0.0, 3.0, 16.0}) {
                    const AxisRule rule{lower, upper, 0.0, 16.0, step > 0.0, step};
                    const auto [limits, automatic] = linearLimits(rule, data, manner);
                    all += formatted("  %s%s %.12g..%.12g by %.6g, %d%s", lower ? "data" : "0", upper ? "" : " to 16",
                                     limits.lower, limits.upper, limits.step, limits.marks, automatic ? "" : " given");
                }
                all += "\n";
            }
        }
    }
    for (const auto& [lower, upper] : {std::pair{0.03, 20.0}, {10.0, 10.0}, {1e-300, 1.0}, {0.1, 100.0}}) {
        for (const double given : {0.0, 0.5, 1.0}) {
            for (const bool fromData : {true, false}) {
                const AxisLimits limits =
                    logarithmicLimits({fromData, fromData, given, given * 400.0, false, 0.0}, {lower, upper}, 50);
                all += formatted("%g..%g, %g: %g..%g, %d decades\n", lower, upper, fromData ? -1.0 : given,
                                 limits.lower, limits.upper, limits.marks);
            }
        }
    }
    EXPECT_EQ(changeOfApproved("axes", all), "");
}

}  // namespace
}  // namespace vorlan::test
