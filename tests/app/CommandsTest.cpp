#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "RecordingPort.h"
#include "SampleDocument.h"
#include "analysis/SpectralAnalysis.h"
#include "app/CommandState.h"
#include "app/RecomputeChain.h"
#include "model/DefaultFrames.h"

namespace vorlan {
namespace {

class Commands : public ::testing::Test {
  protected:
    void SetUp() override {
        simulateAndSelect(document);
        before = document.Probe();
    }

    RecordingPort port;
    CVorl_ADVDoc document{port};
    SAdvProbe before;
};

TEST_F(Commands, CancellingStoresNothingAnywhereInTheRun) {
    // Wherever the run is cut, the probe is bit for bit what it was.
    int done = 0;
    for (int pumps = 0; pumps < 2000 && done == 0; ++pumps) {
        port.pumpsLeft = pumps;
        const Outcome outcome = document.SpectralAnalysis(lagsOf(60));
        if (outcome == Outcome::Done) {
            ++done;
            EXPECT_GT(pumps, 0) << "the run never asked whether it is wanted";
        } else {
            EXPECT_EQ(outcome, Outcome::Cancelled);
            ASSERT_EQ(document.Probe(), before);
            ASSERT_FALSE(document.IsRunning());
        }
    }
    EXPECT_EQ(done, 1);
}

TEST_F(Commands, NothingStartsDuringARun) {
    class Nosy : public RecordingPort {
      public:
        void pump() override {
            state = commandState(*document, Command::SimulateTimeSeries).enabled ||
                    commandState(*document, Command::NewWorkspace).enabled;
            inner = document->ResetTimeSeries();
        }
        CVorl_ADVDoc* document = nullptr;
        bool state = true;
        Outcome inner = Outcome::Done;
    } nosy;
    CVorl_ADVDoc busy(nosy);
    nosy.document = &busy;
    simulateAndSelect(busy);
    ASSERT_EQ(busy.SpectralAnalysis(lagsOf(50)), Outcome::Done);
    EXPECT_FALSE(nosy.state);
    EXPECT_EQ(nosy.inner, Outcome::Refused);
}

TEST_F(Commands, EveryDoneMarkHasAPlaceInTheChain) {
    std::array<int, kDoneMarkCount> places{};
    for (const StageRepeat& stage : recomputeChain()) {
        ++places[static_cast<std::size_t>(stage.mark)];
    }
    for (const int count : places) {
        EXPECT_EQ(count, 1);
    }
}

}  // namespace
}  // namespace vorlan
