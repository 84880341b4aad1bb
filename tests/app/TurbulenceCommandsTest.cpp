#include <gtest/gtest.h>

#include <cmath>

#include "RecordingPort.h"
#include "SampleDocument.h"

namespace vorlan {
namespace {

class TurbulenceCommands : public ::testing::Test {
  protected:
    void SetUp() override {
        simulateAndSelect(document);
        document.SpectralAnalysis(lagsOf(100));
        before = document.Probe();
        port.clear();
    }

    RecordingPort port;
    CVorl_ADVDoc document{port};
    SAdvProbe before;
};

TEST_F(TurbulenceCommands, OnlyAcceptedResultsChangeTheProbe) {
    const DissipationReading point{DissipationSource::Structure, 0.4, 3.0};
    const ScalesReading lags{ScalesSource::Correlation, -1.0, 2.0};
    const ScalesReading frequencies{ScalesSource::Spectrum, 0.5, 1e12};
    port.answer = false;
    EXPECT_EQ(document.ExtractDissipationRate(point), Outcome::Cancelled);
    EXPECT_EQ(document.ExtractScales(lags), Outcome::Cancelled);
    EXPECT_EQ(document.Probe(), before);
    port.answer = true;
    EXPECT_EQ(document.ExtractDissipationRate(point), Outcome::Done);
    EXPECT_EQ(document.ExtractScales(lags), Outcome::Done);
    EXPECT_EQ(document.ExtractScales(frequencies), Outcome::Done);

    const double rate = dissipationRate(point, before, document.Settings());
    before.resultBlock[0] = rate;
    const auto scales = integratedScales(lags.source, before, {0, 50});
    const auto integrals = integratedScales(frequencies.source, before, {4, 100});
    std::copy(scales.begin(), scales.end(), &before.resultBlock[1]);
    std::copy(integrals.begin(), integrals.end(), &before.resultBlock[4]);
    EXPECT_EQ(document.Probe(), before);
    ASSERT_EQ(port.questions.size(), 5U);
    char text[200];
    std::snprintf(text, sizeof text, "Accept the dissipation rate value = %f ?", rate);
    EXPECT_EQ(port.questions[2], text);
    std::snprintf(text, sizeof text, "Accept scales Tu = %f, Tv = %f, Tw = %f ?", scales[0], scales[1], scales[2]);
    EXPECT_EQ(port.questions[3], text);
    std::snprintf(text, sizeof text, "Accept integrals of spectra: Su = %f, Sv = %f, Sw = %f ?", integrals[0],
                  integrals[1], integrals[2]);
    EXPECT_EQ(port.questions[4], text);

    // What is not finite is accepted like any other value.
    document.ExtractDissipationRate({DissipationSource::Structure, 0.0, 3.0});
    EXPECT_TRUE(std::isinf(document.Probe().resultBlock[0]));
}

TEST_F(TurbulenceCommands, LimitsWithNothingBetweenThemAreSaidOnSpectraOnly) {
    EXPECT_EQ(document.ExtractScales({ScalesSource::Correlation, 2.0, 1.0}), Outcome::Refused);
    EXPECT_TRUE(port.refusals.empty());
    EXPECT_EQ(document.ExtractScales({ScalesSource::Spectrum, 2.0, 1.0}), Outcome::Refused);
    EXPECT_EQ(port.refusals, std::vector<std::string>{"Wrong limits for integration 2.000000  1.000000 wrong"});
    EXPECT_TRUE(port.questions.empty());
    EXPECT_EQ(document.Probe(), before);
}

TEST_F(TurbulenceCommands, ResultsAreOldOnceTheRecordHasChanged) {
    document.ExtractDissipationRate({DissipationSource::Spectrum, 1.0, 2.0});
    document.SpectralAnalysis(lagsOf(50));
    EXPECT_FALSE(document.Probe().ResultsAreOld(SAdvProbe::kDissipationRate));
    const auto kept = document.Probe().resultBlock;
    document.Clip(1.0, 30.0);
    EXPECT_TRUE(document.Probe().ResultsAreOld(SAdvProbe::kDissipationRate));
    EXPECT_FALSE(document.Probe().ResultsAreOld(SAdvProbe::kTimeScales));
    EXPECT_EQ(document.Probe().resultBlock, kept);
    document.ExtractDissipationRate({DissipationSource::Spectrum, 1.0, 2.0});
    EXPECT_FALSE(document.Probe().ResultsAreOld(SAdvProbe::kDissipationRate));
}

}  // namespace
}  // namespace vorlan
