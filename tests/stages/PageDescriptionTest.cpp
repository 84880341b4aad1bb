#include "stages/PageDescription.h"

#include <gtest/gtest.h>

#include "analysis/Simulation.h"
#include "model/StageTable.h"

namespace vorlan {
namespace {

/// Two data files with two probes each.
class PageDescriptionTest : public ::testing::Test {
  protected:
    PageDescriptionTest() {
        workspace.dataFiles.files.Add(simulate({}, 7));
        SAdvProbesArray& probes = workspace.dataFiles.files.ElementAt(0).probes;
        probes.Add(probes.GetAt(0));
        workspace.dataFiles.files.Add(workspace.dataFiles.files.GetAt(0));
    }
    void done(int file, int probe, Stage stage) {
        SAdvProbe& record = workspace.dataFiles.files.ElementAt(file).probes.ElementAt(probe);
        record.SetDone(*stageRow(stage).mark);
        record.tabItems.AppendStage(static_cast<int>(stage));
    }
    static std::string listed(const std::vector<ReportPage>& pages) {
        std::string text;
        for (const ReportPage& page : pages) {
            text += std::to_string(page.file) + std::to_string(page.probe) + stageRow(page.stage).name + " ";
        }
        return text;
    }

    Workspace workspace;
};

TEST_F(PageDescriptionTest, ReportsFollowFilesProbesAndTabs) {
    done(0, 0, Stage::Quadrants);
    done(0, 0, Stage::Stationarity);
    for (const auto& [file, probe] : {std::pair(0, 1), {1, 0}, {1, 1}}) {
        done(file, probe, Stage::MeanVelocityVectors);
    }
    done(0, 1, Stage::Spectral);
    done(0, 0, Stage::MeanVelocityVectors);
    // Its tab stays, its results are gone.
    done(1, 0, Stage::Histograms);
    workspace.dataFiles.files.ElementAt(1).probes.ElementAt(0).SetDone(DoneMark::Histograms, false);
    EXPECT_EQ(listed(pagesOfProbes(workspace, allProbes(workspace))),
              "00pre-processing 00quadrants 00stationarity 00vectors 01pre-processing 01spectral "
              "10pre-processing 10vectors 11pre-processing ");
    EXPECT_EQ(listed(pagesOfProbe(workspace, 1, 1)), "11pre-processing 11vectors ");
    EXPECT_TRUE(pagesOfProbe(workspace, 1, 2).empty());
}

TEST_F(PageDescriptionTest, PagesHoldTheTickedPanesOfTheirStage) {
    PageAtrType& attributes = workspace.pages.ElementAt(stageRow(Stage::PreProcessing).pageRecord);
    attributes.printLeftBottom = attributes.printRightTop = 0;
    attributes.header = "K\xF6ln";
    const PageContent page = describePage(requestFor(workspace, {0, 0, Stage::PreProcessing}), {21.0, 29.7});
    ASSERT_EQ(page.panes.size(), 2U);
    EXPECT_TRUE(std::holds_alternative<Diagram>(page.panes[0]));
    EXPECT_TRUE(std::holds_alternative<TableContent>(page.panes[1]));
    EXPECT_EQ(page.header, "K\u00f6ln");
    EXPECT_EQ(page.footer, "-1-");
    EXPECT_EQ(page.layout.panes[1].pane, Pane::RightBottom);
    std::string place;
    for (const OutlineEntry& entry : placeOf(workspace, {1, 0, Stage::Quadrants})) {
        place += std::to_string(entry.number) + entry.text + "|";
    }
    EXPECT_EQ(place, "1test|0Probe 1|5Qudrants Analysis|");
}

TEST_F(PageDescriptionTest, RefusalsNameTheStage) {
    const std::vector<ReportPage> pages = {{0, 0, Stage::PreProcessing}, {0, 0, Stage::Quadrants}};
    EXPECT_EQ(refusalOf(workspace, pages, {21.0, 29.7}), "");
    workspace.pages.ElementAt(stageRow(Stage::Spectral).pageRecord).fontScale = 0.0;
    EXPECT_EQ(refusalOf(workspace, pages, {21.0, 29.7}), "");
    workspace.pages.ElementAt(stageRow(Stage::Quadrants).pageRecord).leftTop.width = 0.0;
    EXPECT_EQ(refusalOf(workspace, pages, {21.0, 29.7}),
              "Qudrants Analysis: The width of the left-top pane must be above 0 and at most 1000 cm.");
}

}  // namespace
}  // namespace vorlan
