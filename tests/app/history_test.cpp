#include <gtest/gtest.h>

#include <random>

#include "RecordingPort.h"
#include "SampleDocument.h"
#include "model/DefaultFrames.h"
#include "model/WorkspaceImage.h"

namespace vorlan {
namespace {

test::Bytes stored(const CVorl_ADVDoc& document) {
    Workspace copy = document.GetWorkspace();
    return test::stored(copy);
}

/// One thing that a user may do; draws what it is and its parameters.
void doSomething(CVorl_ADVDoc& document, RecordingPort& port, std::mt19937& random) {
    const auto pick = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    port.answer = pick(2) == 0;
    switch (pick(19)) {
        case 0:
            document.SimulateTimeSeries(sampleParameters(8.0), random());
            return;
        case 1:
            document.CloseFile();
            return;
        case 2:
        case 3:
            return document.SelectFile(pick(document.GetWorkspace().dataFiles.files.GetSize() + 1));
        case 4:
            return document.SelectStage(pick(4));
        case 5:
            return document.SelectActivePane(static_cast<Pane>(pick(kPaneCount)));
        case 6:
            return document.ShowTable(pick(2) == 0);
        case 7:
            document.EnterZoomMode();
            return;
        case 8:
            document.Clip(0.1 * pick(20), 3.0 + pick(5));
            return;
        case 9:
            document.ResetTimeSeries();
            return;
        case 10:
            document.ChangeCoordinateSystem({.heading = 1.0 * pick(90)});
            return;
        case 11:
            document.EditTimeSeries({});
            return;
        case 12:
            document.Distributions({});
            return;
        case 13:
            document.SpectralAnalysis(lagsOf(10 + pick(200)));
            return;
        case 14:
            document.SetMeanVelocity({MeanVelocityMode::User, 1.0 + pick(9)});
            return;
        case 15:
            document.VectorsOfMeanVelocities({pick(3), 10 + pick(9), 5.0, 2.0});
            return;
        case 16:
            document.PlaceProbe(0, 0, {1.0 * pick(9), std::nullopt, std::nullopt});
            return;
        case 17:
            document.ExtractScales({ScalesSource::Correlation, 0.0, 0.1 * pick(9)});
            return;
        default:
            if (document.HasProbe()) {
                FrameAttributesType frame = defaultFrame(0, 1);
                frame.plotTitle = std::to_string(pick(9));
                document.SetFrame(0, 1, frame);
            }
    }
}

TEST(History, EverythingTakenBackIsWhatWasOpenedAndEverythingRedoneIsWhatWasDone) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        RecordingPort port;
        CVorl_ADVDoc document(port);
        const test::Bytes opened = stored(document);
        for (int i = 0; i < 120; ++i) {
            switch (random() % 8) {
                case 0:
                    document.Undo();
                    break;
                case 1:
                    document.Redo();
                    break;
                default:
                    doSomething(document, port, random);
            }
        }
        const test::Bytes done = stored(document);
        int steps = 0;
        for (; document.Undo() == Outcome::Done; ++steps) {
        }
        EXPECT_GT(steps, 1);
        EXPECT_TRUE(stored(document) == opened);
        EXPECT_FALSE(document.IsModified());
        for (; steps > 0; --steps) {
            ASSERT_EQ(document.Redo(), Outcome::Done);
        }
        EXPECT_TRUE(stored(document) == done);
    }
}

TEST(History, TheModifiedMarkFollowsTheSavedState) {
    RecordingPort port;
    CVorl_ADVDoc document(port);
    simulateAndSelect(document, 8.0);
    const std::filesystem::path path = std::filesystem::path(::testing::TempDir()) / "history.avp";
    document.SaveWorkspace(path);
    document.SelectActivePane(Pane::RightTop);
    EXPECT_FALSE(document.IsModified()) << "a selection";
    document.Clip(0.0, 4.0);
    EXPECT_STREQ(document.UndoName(), "Clipping");
    document.Undo();
    EXPECT_FALSE(document.IsModified()) << "back to what was saved";
    EXPECT_STREQ(document.RedoName(), "Clipping");
    document.Undo();
    EXPECT_TRUE(document.IsModified()) << "in front of what was saved";
    document.SetMeanVelocity({MeanVelocityMode::User, 5.0});
    EXPECT_TRUE(document.IsModified()) << "beside it, for good";
    EXPECT_EQ(document.Redo(), Outcome::Refused);
    document.OpenWorkspace(path);
    EXPECT_EQ(document.UndoName(), nullptr);
    std::filesystem::remove(path);
}

}  // namespace
}  // namespace vorlan
