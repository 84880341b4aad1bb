#include <gtest/gtest.h>

#include "RecordingPort.h"
#include "SampleDocument.h"
#include "app/CommandState.h"

namespace vorlan {
namespace {

class Selection : public ::testing::Test {
  protected:
    RecordingPort port;
    CVorl_ADVDoc document{port};

    bool enabled(Command command) const { return commandState(document, command).enabled; }
};

TEST_F(Selection, ClosingStepsDownBeforeItRemoves) {
    for (int i = 0; i < 3; ++i) {
        simulateAndSelect(document, 10.0 + i);
    }
    document.SelectFile(1);
    const int previous = document.Settings().previousFile;
    port.answer = false;
    EXPECT_EQ(document.CloseFile(), Outcome::Cancelled);
    EXPECT_EQ(document.GetWorkspace().dataFiles.files.GetSize(), 3);

    port.answer = true;
    EXPECT_EQ(document.CloseFile(), Outcome::Done);
    EXPECT_EQ(port.questions.back(), "Do you want to close the active data file ?");
    EXPECT_EQ(document.GetWorkspace().dataFiles.files.GetSize(), 2);
    EXPECT_EQ(document.ActiveFile(), 0);
    EXPECT_EQ(document.Settings().previousFile, previous - 1);
    EXPECT_EQ(document.File().probes.GetAt(0).sampleCount, 250U);

    EXPECT_EQ(document.CloseFile(), Outcome::Done);
    EXPECT_EQ(document.ActiveFile(), -1) << "closing the first of several leaves none selected";
    EXPECT_EQ(document.GetWorkspace().dataFiles.files.GetSize(), 1);
    EXPECT_FALSE(enabled(Command::CloseFile));
}

TEST_F(Selection, IndexesOutOfRangeCountAsNoSelection) {
    simulateAndSelect(document);
    WorkspaceSettings found = document.Settings();
    found.activeFile = 7;
    document.RestoreSelection(found);
    EXPECT_FALSE(document.HasFile());
    EXPECT_FALSE(document.HasProbe());
    EXPECT_EQ(document.Settings().activeFile, 7) << "the stored value stays until the user selects";
    document.SelectFile(3);
    EXPECT_EQ(document.Settings().activeFile, 7);
}

TEST_F(Selection, TabAndStageAgreeWhateverAWorkspaceHolds) {
    simulateAndSelect(document);
    ASSERT_EQ(document.StationarityAnalysis({BandMode::Fixed, 4}), Outcome::Done);
    // The tab was put back without its stage.
    WorkspaceSettings found = document.Settings();
    found.activeItem = 0;
    document.RestoreSelection(found);
    EXPECT_EQ(document.CurrentStage(), Stage::PreProcessing);
    EXPECT_TRUE(document.ShowsTable());
    EXPECT_TRUE(enabled(Command::ResetTimeSeries));
    EXPECT_EQ(document.Settings().choiceA, 2) << "looking changes nothing";
    document.ShowTable(false);
    EXPECT_FALSE(document.ShowsTable());
    EXPECT_EQ(document.Settings().choiceA, 1);
}

}  // namespace
}  // namespace vorlan
