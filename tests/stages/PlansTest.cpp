#include <gtest/gtest.h>

#include "analysis/Simulation.h"
#include "model/DefaultFrames.h"
#include "model/VectorPlan.h"
#include "stages/GridPreview.h"
#include "stages/PaneDescription.h"
#include "stages/PlanReadOut.h"

namespace vorlan {
namespace {

/// One probe at 1.5, 0.25, 0.04 m in a mean flow of 50, 5 and 0 cm/s.
class Plans : public ::testing::Test {
  protected:
    Plans() {
        SimulationParameters parameters;
        parameters.length = 2.0;
        parameters.position = {1.5, 0.25, 0.04};
        workspace.dataFiles.files.Add(simulate(parameters, 7));
    }
    SAdvProbe& probe() { return workspace.dataFiles.files.ElementAt(0).probes.ElementAt(0); }
    std::string axesOf(Pane pane) {
        const PaneContent content = describePane({workspace, 0, -1, Stage::MeanVelocityVectors, pane});
        const auto* plan = std::get_if<Diagram>(&content);
        return plan == nullptr ? "none" : plan->frame.xTitle + "; " + plan->frame.yTitle;
    }

    Workspace workspace;
};

TEST_F(Plans, OpenInThePlaneOfTheLongestArrowUntilOneIsChosen) {
    EXPECT_EQ(shownPlane(workspace), 0);
    SArray& w = probe().workTables[0].ElementAt(2);
    for (int i = 0; i < w.GetSize(); ++i) {
        w.SetValue(i, -30.0);
    }
    EXPECT_EQ(axesOf(Pane::LeftTop), "X, m; Z, m");
    EXPECT_EQ(axesOf(Pane::LeftBottom), "X, m; Z, m");
    probe().SetDone(DoneMark::MeanVelocity);
    EXPECT_EQ(axesOf(Pane::LeftTop), "Y, m; Z, m");
    probe().SetDone(DoneMark::MeanVelocity, false);
    workspace.settings.vectors.pixels = 51;
    EXPECT_EQ(axesOf(Pane::LeftBottom), "Y, m; Z, m");
    workspace.settings.vectors.plane = 9;
    EXPECT_EQ(shownPlane(workspace), 2);
    workspace.dataFiles.files.RemoveAll();
    EXPECT_EQ(axesOf(Pane::LeftTop), "none");
}

TEST_F(Plans, PreviewAndReadOutNameThePlaces) {
    for (const double end : {3.0, 2.0}) {
        SBndFile boundary;
        boundary.SetNode(0, 0.0, 1.0, 0.5);
        boundary.SetNode(1, end, 1.0, 0.5);
        workspace.boundaries.Add(boundary);
    }
    probe().probeNumber = 12;
    workspace.dataFiles.files.ElementAt(0).fileName = "C:\\data\\run 7";
    const Diagram d = describeGrid(workspace, 1, defaultPreviewFrame(1));
    ASSERT_EQ(d.plot.series.size(), 3U);
    const auto legend = [&](std::size_t i) { return d.plot.series[i].attributes.legendText; };
    EXPECT_EQ(legend(0) + "|" + legend(1) + "|" + legend(2), "boundaries||sampling volumes");
    EXPECT_EQ(d.plot.series[0].attributes.markerKind, MarkerKind::Square);
    EXPECT_EQ(d.plot.series[1].x.values, (std::vector<double>{0.0, 2.0}));
    EXPECT_EQ(d.plot.series[2].y, std::vector<double>{0.04});
    EXPECT_EQ(d.labels[0].text, "Probe 12");
    CScreenUtils geometry;
    geometry.originY = geometry.width = geometry.height = 100;
    geometry.xScale = geometry.yScale = 0.05;
    EXPECT_EQ(planReadOut(d, geometry, 33, 97), "run 7, Probe 12   X: 1.500 m   Y: 0.250 m   Z: 0.040 m");
    EXPECT_EQ(planReadOut(d, geometry, 40, 50), "X: 2.000 m   Z: 2.500 m");
    EXPECT_EQ(planReadOut(d, geometry, 140, 50), "");
}

}  // namespace
}  // namespace vorlan
