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

TEST_F(Commands, OkRepeatsTheDoneStagesAndCancelKeepsTheirResults) {
    ASSERT_EQ(document.StationarityAnalysis({BandMode::Fixed, 5}), Outcome::Done);
    ASSERT_EQ(document.SpectralAnalysis(lagsOf(50)), Outcome::Done);
    document.SelectStage(0);
    const SAdvProbe analysed = document.Probe();

    port.answer = false;
    ASSERT_EQ(document.ResetTimeSeries(), Outcome::Done);
    EXPECT_FALSE(document.Probe().HasOldStage()) << "the record is what it was";
    ASSERT_EQ(document.Clip(0.0, 20.0), Outcome::Done);
    EXPECT_EQ(document.Probe().WorkingSamples(), 500);
    EXPECT_EQ(document.Probe().seriesU.correlation, analysed.seriesU.correlation);
    EXPECT_EQ(document.Probe().seriesU.bandMeans, analysed.seriesU.bandMeans);
    EXPECT_TRUE(document.Probe().IsDone(DoneMark::Spectral));
    EXPECT_TRUE(document.Probe().IsOld(DoneMark::Spectral));
    EXPECT_FALSE(document.Probe().IsOld(DoneMark::Histograms)) << "never run";
    document.Undo();
    EXPECT_FALSE(document.Probe().HasOldStage());
    document.Redo();
    EXPECT_TRUE(document.Probe().IsOld(DoneMark::Stationarity));
    ASSERT_EQ(document.StationarityAnalysis({BandMode::Fixed, 5}), Outcome::Done);
    EXPECT_FALSE(document.Probe().IsOld(DoneMark::Stationarity)) << "run again";
    document.SelectStage(0);

    port.answer = true;
    ASSERT_EQ(document.ResetTimeSeries(), Outcome::Done);
    ASSERT_EQ(document.Clip(0.0, 20.0), Outcome::Done);
    CVorl_ADVDoc fresh(port);
    simulateAndSelect(fresh);
    ASSERT_EQ(fresh.Clip(0.0, 20.0), Outcome::Done);
    ASSERT_EQ(fresh.StationarityAnalysis({BandMode::Fixed, 5}), Outcome::Done);
    ASSERT_EQ(fresh.SpectralAnalysis(lagsOf(50)), Outcome::Done);
    EXPECT_EQ(document.Probe().seriesW.structureFunction, fresh.Probe().seriesW.structureFunction);
    EXPECT_EQ(document.Probe().seriesU.spectrum, fresh.Probe().seriesU.spectrum);
    EXPECT_EQ(document.Probe().seriesV.bandKurtosis, fresh.Probe().seriesV.bandKurtosis);
    EXPECT_EQ(document.CurrentStage(), Stage::PreProcessing) << "repeating selects no stage";
    EXPECT_FALSE(document.Probe().HasOldStage());
}

TEST_F(Commands, AStageThatCannotBeRepeatedSaysSoOnceAndTheChainGoesOn) {
    ASSERT_EQ(document.SpectralAnalysis(lagsOf(400)), Outcome::Done);
    ASSERT_EQ(document.CrossSpectralAnalysis(), Outcome::Done);
    QuadrantSettings quadrants;
    quadrants.maximumLag = 2.0;
    ASSERT_EQ(document.QuadrantsAnalysis(quadrants), Outcome::Done);
    document.SelectStage(0);
    const SAdvProbe analysed = document.Probe();
    ASSERT_EQ(document.Clip(0.0, 20.0), Outcome::Done);
    EXPECT_EQ(port.refusals, std::vector<std::string>{kTruncationTooLarge});
    const SAdvProbe& probe = document.Probe();
    EXPECT_EQ(probe.seriesU.spectrum, analysed.seriesU.spectrum);
    EXPECT_EQ(probe.workTables[SAdvProbe::kCoSpectra], analysed.workTables[SAdvProbe::kCoSpectra]);
    EXPECT_NE(probe.stageTables[SAdvProbe::kTimes], analysed.stageTables[SAdvProbe::kTimes]) << "quadrants repeated";
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
