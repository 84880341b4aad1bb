#include <gtest/gtest.h>

#include "plot/FixedMeasure.h"
#include "plot/PointNames.h"
#include "plot/PolylineEnvelope.h"
#include "plot/SPlotFrame.h"
#include "plot/SeriesShapes.h"

using namespace vorlan;

namespace {

constexpr Box kPane{0, 0, 560, 360};

struct Place {
    double x;
    double y;
    double u;
    double v;
};

/// A plan of arrows, markers and names.
Diagram planOf(const std::vector<Place>& places) {
    Diagram plan;
    plan.planRoom = 0.5;
    plan.frame.legendPosition = static_cast<std::int32_t>(LegendPosition::Bottom);
    PlotSeries arrows;
    arrows.attributes.style = SeriesStyle::Arrows;
    arrows.attributes.legendText = "10.0 cm/s";
    PlotSeries markers;
    markers.attributes.style = SeriesStyle::Markers;
    for (const Place& place : places) {
        arrows.x.values.push_back(place.x);
        arrows.y.push_back(place.y);
        arrows.vx.push_back(place.u);
        arrows.vy.push_back(place.v);
        plan.labels.push_back({place.x, place.y, "Probe " + std::to_string(plan.labels.size() + 1)});
    }
    markers.x = arrows.x;
    markers.y = arrows.y;
    plan.plot.series = {arrows, markers};
    return plan;
}

struct Row {
    const char* name;
    std::vector<Place> places;
    std::size_t names;
};

class Plans : public testing::TestWithParam<Row> {};

TEST_P(Plans, EncloseArrowsAndNames) {
    const Diagram plan = planOf(GetParam().places);
    const FixedMeasure measure;
    const FrameLayout layout = SPlotFrame(plan, measure).layout(kPane);
    ASSERT_EQ(layout.state, FrameLayout::State::Drawn);
    const CScreenUtils& g = layout.geometry;
    const Box inside{g.originX, g.originY - g.height, g.originX + g.width + 1, g.originY + 1};
    std::vector<Line> strokes;
    for (const Arrow& arrow : arrows(plan.plot.series[0], g, 1.0)) {
        strokes.push_back(arrow.shaft);
        EXPECT_TRUE(inside.encloses({arrow.shaft.to.x, arrow.shaft.to.y, arrow.shaft.to.x + 1, arrow.shaft.to.y + 1}));
    }
    EXPECT_EQ(strokes.size(), GetParam().places.size());
    const std::vector<PlacedText> names = pointTexts(plan, g, measure, 1.0);
    EXPECT_EQ(names.size(), GetParam().names);
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_TRUE(inside.encloses(names[i].box));
        for (std::size_t k = 0; k < i; ++k) {
            EXPECT_FALSE(names[i].box.overlaps(names[k].box));
        }
        for (const Line& stroke : strokes) {
            EXPECT_FALSE(clippedLine(stroke, names[i].box)) << names[i].text;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Places, Plans,
    testing::Values(Row{"single", {{1.5, 0.25, 120.0, -40.0}}, 1}, Row{"long", {{1.5, 0.25, -300.0, 5.0}}, 1},
                    Row{"corners", {{0, 0, -90, -60}, {3, 0, 90, -60}, {0, 1, -90, 60}, {3, 1, 90, 60}}, 4},
                    Row{"vertical", {{2, 0.1, 80, 1}, {2, 0.2, 95, 2}, {2, 0.3, 110, 3}, {2, 0.4, 125, 4}}, 4}),
    [](const auto& row) { return row.param.name; });

}  // namespace
