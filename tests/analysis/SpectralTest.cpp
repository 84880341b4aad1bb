#include <gtest/gtest.h>

#include <limits>

#include "Records.h"
#include "analysis/AnalysedSeries.h"
#include "analysis/RecordingProgress.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/SpectralFunctions.h"
#include "model/Errors.h"

// Runs once for every instruction set of the processor: the build sets VORLAN_SIMD.

namespace vorlan::test {
namespace {

SAdvProbe seriesOf(int samples) {
    SAdvProbe probe = correlatedProbe(samples, -0.4);
    formAnalysedSeries(probe);
    return probe;
}

/// The three functions of one series, one plain loop each, as stored integers.
struct ByHand {
    std::vector<std::int32_t> correlation;
    std::vector<std::int32_t> spectrum;
    std::vector<std::int32_t> structure;
};

ByHand byHand(const SArray& values, int lags, int window, int unit, double interval) {
    const int n = values.GetSize();
    double mean = 0.0;
    for (int j = 0; j < n; ++j) {
        mean += values.GetValue(j);
    }
    mean /= n;
    ByHand result;
    for (int k = 0; k < lags; ++k) {
        double products = 0.0;
        double squares = 0.0;
        for (int j = 0; j < n - k; ++j) {
            const double a = values.GetValue(j) - mean;
            const double b = values.GetValue(j + k) - mean;
            products += b * a;
            squares += (a - b) * (a - b);
        }
        result.correlation.push_back(held(products / (n - k), 1e-5));
        result.structure.push_back(held(squares / (n - k), 1e-5));
    }
    for (int i = 0; i < lags; ++i) {
        double sum = 0.0;
        for (int k = 1; lags - 1 > 1 && k <= lags - 2; ++k) {
            sum += plainLagWindow(window, k, lags - 1) * (result.correlation[static_cast<std::size_t>(k)] * 1e-5) *
                   std::cos(kWrittenPi * i * k / (lags - 1));
        }
        const double total = result.correlation[0] * 1e-5 + 2.0 * sum;
        const std::int32_t integer = held(unit == 1 ? total * interval / kWrittenPi : 2.0 * total * interval, 1e-7);
        const bool turned = integer < 0 && integer != std::numeric_limits<std::int32_t>::min();
        result.spectrum.push_back(turned ? -integer : integer);
    }
    return result;
}

TEST(SpectralAnalysis, EqualsThePlainLoops) {
    int spectrumValues = 0;
    int differing = 0;
    for (const int samples : {2, 6, 131, 1237}) {
        for (int lags : {1, 2, 3, 4, 65, 66, samples / 2}) {
            if (!truncationPointFits(lags, samples)) {
                continue;
            }
            for (int window = 0; window < 4; ++window) {
                const int unit = window % 2;
                SAdvProbe probe = seriesOf(samples);
                NoProgress progress;
                analyseSpectra(probe, {lags, window, unit}, progress);
                for (int component = 0; component < 3; ++component) {
                    const STimeSeries& series = probe.Series(component);
                    const ByHand expected = byHand(series.values, lags, window, unit, 0.04);
                    ASSERT_EQ(unitsOf(series.correlation), expected.correlation) << samples << ' ' << lags;
                    ASSERT_EQ(unitsOf(series.structureFunction), expected.structure) << samples << ' ' << lags;
                    ASSERT_EQ(series.spectrum.GetSize(), lags);
                    for (int i = 0; i < lags; ++i) {
                        const std::int64_t difference =
                            std::int64_t{series.spectrum.GetAt(i)} - expected.spectrum[static_cast<std::size_t>(i)];
                        ASSERT_LE(std::abs(difference), 1) << samples << ' ' << lags << ' ' << window << ' ' << i;
                        ++spectrumValues;
                        differing += difference != 0 ? 1 : 0;
                    }
                }
            }
        }
    }
    EXPECT_GT(spectrumValues, 9000);
    EXPECT_LE(differing, spectrumValues / 10000 + 1);
}

TEST(SpectralAnalysis, RecordsItsRunAndTellsItsProgress) {
    SAdvProbe probe = seriesOf(50);
    RecordingProgress progress;
    analyseSpectra(probe, {10, 3, 1}, progress);
    EXPECT_EQ(progress.positions, (std::vector<int>{5, 15, 25, 35, 40, 50, 60, 70, 75, 85, 95, 100}));
    const std::vector<std::string> once = {
        "Cov. function calculations: ", "Spectrum calculations: ", "Str. function calculations: "};
    ASSERT_EQ(progress.texts.size(), 10U);
    EXPECT_EQ(progress.texts.front(), "Spectral analysis calculations: ");
    EXPECT_TRUE(std::equal(once.begin(), once.end(), progress.texts.begin() + 7));
    EXPECT_TRUE(probe.IsDone(DoneMark::Spectral));
    EXPECT_EQ(probe.spectralLags, 10U);
    EXPECT_EQ(probe.spectralWindow, 3U);
    EXPECT_EQ(probe.spectralUnit, 1U);
    for (const STimeSeries* series : {&probe.seriesU, &probe.seriesV, &probe.seriesW}) {
        EXPECT_EQ(series->lags, 10U);
        EXPECT_EQ(series->windowCode, 3U);
        EXPECT_EQ(series->unitSelector, 1U);
        EXPECT_EQ(series->samplingInterval, 0.04);
        EXPECT_EQ(series->correlation.GetScale(), 1e-5);
        EXPECT_EQ(series->spectrum.GetScale(), 1e-7);
        EXPECT_EQ(series->structureFunction.GetScale(), 1e-5);
        EXPECT_GT(series->moments.variance, 0.0);
    }
}

TEST(SpectralAnalysis, TakesLagsUpToHalfOfTheRecord) {
    EXPECT_TRUE(truncationPointFits(1250, 2501));
    EXPECT_FALSE(truncationPointFits(1251, 2501));
    EXPECT_FALSE(truncationPointFits(2'147'483'647, 2'000'000'000));
}

}  // namespace
}  // namespace vorlan::test
