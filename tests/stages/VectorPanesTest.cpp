#include <algorithm>
#include <cmath>

#include "analysis/AnalysedSeries.h"
#include "model/ProbeInformation.h"
#include "stages/StageFixture.h"

namespace vorlan {
namespace {

using Texts = std::vector<std::string>;
constexpr Stage kStage = Stage::MeanVelocityVectors;

class VectorPanes : public StageFixture {
  protected:
    VectorPanes() {
        probe().samplingVolumeX = 1500.0;
        probe().samplingVolumeY = 250.0;
        probe().samplingVolumeZ = 40.0;
        workspace.settings.planPlane = 0;
    }
    void addBoundary(double x, double y, double z) {
        SBndFile boundary;
        boundary.SetNode(0, 0.0, y, 0.0);
        boundary.SetNode(1, x, y, z);
        workspace.boundaries.Add(boundary);
    }
};

TEST_F(VectorPanes, MeanArrowsStandAtTheSamplingVolumes) {
    workspace.settings.planPixels = 60;
    workspace.settings.planSpeed = 20.0;
    Diagram d = diagram(kStage, Pane::LeftTop);
    ASSERT_EQ(d.plot.series.size(), 1U);
    const PlotSeries& arrows = d.plot.series[0];
    EXPECT_EQ(arrows.attributes.style, SeriesStyle::Arrows);
    EXPECT_EQ(arrows.attributes.legendText, "20.0 cm/s");
    EXPECT_DOUBLE_EQ(arrows.attributes.arrowScale, 3.0);
    EXPECT_DOUBLE_EQ(arrows.x.at(0), 1.5);
    EXPECT_DOUBLE_EQ(arrows.y[0], 0.25);
    const auto mean = meanVelocities(probe());
    EXPECT_DOUBLE_EQ(arrows.vx[0], mean[0]);
    EXPECT_DOUBLE_EQ(arrows.vy[0], mean[1]);
    ASSERT_EQ(d.labels.size(), 1U);
    EXPECT_EQ(d.labels[0].text, "Probe 1");
    EXPECT_EQ(d.frame.plotTitle, "Mean Velocity Vectors");

    workspace.settings.planSpeed = 0.0;
    EXPECT_EQ(diagram(kStage, Pane::LeftTop).plot.series[0].attributes.arrowScale, 0.0);
    workspace.settings.planPlane = 2;
    d = diagram(kStage, Pane::LeftTop);
    EXPECT_EQ(d.frame.yTitle, "Z, m");
    EXPECT_DOUBLE_EQ(d.plot.series[0].x.at(0), 0.25);
    EXPECT_DOUBLE_EQ(d.plot.series[0].vy[0], mean[2]);
}

TEST_F(VectorPanes, ExtremesAreRedAndBlueAndSmaller) {
    probe().useAllSamples = 0;
    const std::vector<double> u = countedValues(probe(), probe().workTables[0].GetAt(0));
    const auto top = std::max_element(u.begin(), u.end()) - u.begin();
    probe().sampleFlags.SetAt(static_cast<int>(top), 0);
    const std::vector<double> rest = countedValues(probe(), probe().workTables[0].GetAt(0));

    const Diagram d = diagram(kStage, Pane::LeftBottom);
    ASSERT_EQ(d.plot.series.size(), 2U);
    EXPECT_EQ(d.plot.series[0].attributes.colour, 255);
    EXPECT_EQ(d.plot.series[1].attributes.colour, 65536 * 255);
    EXPECT_DOUBLE_EQ(d.plot.series[0].attributes.arrowScale, 1.0);  // 50 pixels are 10 cm/s, five times smaller
    EXPECT_DOUBLE_EQ(d.plot.series[0].vx[0], *std::max_element(rest.begin(), rest.end()));
    EXPECT_DOUBLE_EQ(d.plot.series[1].vx[0], *std::min_element(rest.begin(), rest.end()));
}

TEST_F(VectorPanes, BoundariesAreOneBrokenLine) {
    addBoundary(3.0, 1.0, 0.5);
    addBoundary(2.0, -1.0, 0.0);
    const PlotSeries line = diagram(kStage, Pane::LeftTop).plot.series[0];
    EXPECT_EQ(line.attributes.legendText, "flow boundaries");
    ASSERT_EQ(line.y.size(), 5U);
    EXPECT_DOUBLE_EQ(line.x.at(1), 3.0);
    EXPECT_TRUE(std::isnan(line.y[2]));
    EXPECT_DOUBLE_EQ(line.y[4], -1.0);
}

TEST_F(VectorPanes, TableAndTextsTellTheDirections) {
    SAdvFile second = workspace.dataFiles.files.GetAt(0);
    second.fileName = "other";
    second.probes.Add(SAdvProbe{});  // without a record
    workspace.dataFiles.files.Add(second);
    const TableContent t = table(kStage, Pane::RightBottom);
    EXPECT_EQ(t.title, "Probe's coordinates and mean flow directions");
    EXPECT_EQ(t.headers, (Texts{"File, Probe", "Heading", "Roll", "Pitch"}));
    ASSERT_EQ(t.rows.size(), 3U);
    EXPECT_EQ(t.rows[1].title, "other, probe 1");
    const FlowDirections directions = meanFlowDirections(meanVelocities(probe()));
    EXPECT_EQ(t.rows[0].values, (std::vector<double>{directions.heading, directions.roll, directions.pitch}));
    EXPECT_TRUE(std::isnan(t.rows[2].values[0]));

    const PaneContent text = pane(kStage, Pane::RightTop);
    ASSERT_TRUE(std::holds_alternative<TextPanel>(text));
    EXPECT_EQ(std::get<TextPanel>(text).lines, probeInformation(probe()));
}

TEST_F(VectorPanes, PlansNeedFilesButNoProbe) {
    const auto plan = [this](int file) { return describePane({workspace, file, -1, kStage, Pane::LeftTop}); };
    EXPECT_TRUE(std::holds_alternative<Diagram>(plan(0)));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(describePane({workspace, 0, -1, kStage, Pane::RightTop})));
    workspace.dataFiles.files.RemoveAll();
    EXPECT_TRUE(std::holds_alternative<std::monostate>(plan(-1)));
}

}  // namespace
}  // namespace vorlan
