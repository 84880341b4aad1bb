#include <gtest/gtest.h>

#include <cmath>

#include "Records.h"
#include "analysis/AnalysedSeries.h"
#include "analysis/MomentEstimators.h"
#include "analysis/ProbeMoments.h"
#include "analysis/Stresses.h"
#include "analysis/TurbulenceScales.h"
#include "model/Errors.h"

namespace vorlan::test {
namespace {

constexpr std::array<double, 3> kScales = {0.5, 0.25, 1.0};

void mark(SAdvProbe& probe, const std::vector<std::int32_t>& marks) {
    probe.sampleFlags.RemoveAll();
    for (const std::int32_t n : marks) {
        probe.sampleFlags.Add(n);
    }
}

TEST(Moments, MixedDivisors) {
    // Deviations -3, -1, 1, 3: squares 20, cubes 0, fourth powers 164.
    const std::vector<double> even = {1.0, 3.0, 5.0, 7.0};
    Moments m = momentsOf(even);
    EXPECT_EQ(m.mean, 4.0);
    EXPECT_EQ(m.variance, 20.0 / 3.0);
    EXPECT_EQ(m.skewness, 0.0);
    EXPECT_DOUBLE_EQ(m.kurtosis, 164.0 / (4.0 * 400.0 / 9.0) - 3.0);
    // Deviations -1, -1, 2: cubes 6, variance 3.
    m = momentsOf(std::vector<double>{1.0, 1.0, 4.0});
    EXPECT_DOUBLE_EQ(m.skewness, 6.0 / (3.0 * 3.0 * std::sqrt(3.0)));
    EXPECT_DOUBLE_EQ(m.kurtosis, 18.0 / 27.0 - 3.0);
}

TEST(Moments, NothingGuardsShortOrConstantSeries) {
    const Moments constant = momentsOf(std::vector<double>{2.0, 2.0, 2.0});
    EXPECT_EQ(constant.mean, 2.0);
    EXPECT_EQ(constant.variance, 0.0);
    EXPECT_TRUE(std::isnan(constant.skewness));
    EXPECT_TRUE(std::isnan(constant.kurtosis));
    EXPECT_TRUE(std::isnan(momentsOf(std::vector<double>{2.0}).variance));
    EXPECT_TRUE(std::isnan(momentsOf({}).mean));
    const Moments two = momentsOf(std::vector<double>{1.0, 2.0});
    EXPECT_EQ(two.variance, 0.5);
    EXPECT_DOUBLE_EQ(two.kurtosis, 0.125 / (2.0 * 0.25) - 3.0);
}

TEST(AnalysedSeries, HoldsTheSamplesThatCount) {
    SAdvProbe probe = probeOf({{{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}}}, kScales);
    mark(probe, {1, 0, 2});
    probe.seriesU.values.Add(99);
    formAnalysedSeries(probe);
    EXPECT_EQ(probe.seriesU.values, columnOf({1, 2, 3, 4}, 0.5));
    probe.useAllSamples = 0;
    formAnalysedSeries(probe);
    // The fourth sample has no mark.
    EXPECT_EQ(probe.seriesU.values, columnOf({1, 3}, 0.5));
    EXPECT_EQ(probe.seriesV.values, columnOf({5, 7}, 0.25));
    EXPECT_EQ(probe.seriesW.values, columnOf({9, 11}, 1.0));
    EXPECT_EQ(probe.seriesW.samplingInterval, 0.5);
    const SArray tenths = columnOf({1, 2}, 0.1);
    EXPECT_EQ(countedColumns(probe, {nullptr, &tenths, nullptr})[1], columnOf({1}, 0.1));

    SAdvProbe uneven = probeOf({{{1, 2}, {1}, {1, 2}}}, kScales);
    mark(uneven, {1, 1});
    EXPECT_THROW(formAnalysedSeries(uneven), InvalidArgument);
    SAdvProbe empty;
    formAnalysedSeries(empty);
    EXPECT_TRUE(empty.seriesU.values.IsEmpty());
}

TEST(ProbeMoments, NeedThreeSamplesThatCount) {
    SAdvProbe probe = probeOf({{{2, 4, 12, 100}, {4, 8, 24, 0}, {1, 2, 6, 0}}}, kScales);
    mark(probe, {1, 1, 1, 0});
    probe.useAllSamples = 0;
    computeProbeMoments(probe);
    EXPECT_EQ(probe.VelocityMoments(0), momentsOf(std::vector<double>{1.0, 2.0, 6.0}));
    EXPECT_EQ(probe.VelocityMoments(2), momentsOf(std::vector<double>{1.0, 2.0, 6.0}));
    // Means, variances, skewness and kurtosis, each of U, V, W.
    EXPECT_EQ(probe.scalarResults[13], 3.0);
    EXPECT_EQ(probe.scalarResults[14], 3.0);
    EXPECT_EQ(probe.scalarResults[17], 7.0);

    probe.useAllSamples = 1;
    EXPECT_EQ(probeMoments(probe)[0].mean, 14.75);
    probe.useAllSamples = 0;
    probe.sampleFlags.SetAt(2, 0);
    computeProbeMoments(probe);
    for (std::size_t i = 13; i < 25; ++i) {
        EXPECT_EQ(probe.scalarResults[i], 0.0);
    }
}

TEST(Stresses, FluctuationsCountEverySampleMomentsOnlyTheMarkedOnes) {
    // U: 0 1 2 5 (mean 2), V: 1 0 -1 4 (mean 1), W: 3 -1 2 0 (mean 1).
    SAdvProbe probe = probeOf({{{0, 2, 4, 10}, {4, 0, -4, 16}, {3, -1, 2, 0}}}, kScales);
    mark(probe, {1, 1, 1, 0});
    probe.useAllSamples = 0;
    formStresses(probe);
    const SMultiArray& stresses = probe.workTables[SAdvProbe::kStresses];
    ASSERT_EQ(stresses.GetSize(), 3);
    EXPECT_EQ(stresses.GetAt(0), columnOf({0, 2, 0, 18}, 0.5));      // 0, 1, 0, 9
    EXPECT_EQ(stresses.GetAt(1), columnOf({-16, 8, 0, -12}, 0.25));  // -4, 2, 0, -3
    EXPECT_EQ(stresses.GetAt(2), columnOf({0, 2, -2, -3}, 1.0));
    EXPECT_EQ(probe.scalarResults[10], 2.0);
    EXPECT_EQ(probe.scalarResults[11], 1.0);
    EXPECT_EQ(probe.scalarResults[12], 1.0);
    EXPECT_EQ(probe.stressesFormed, 1U);
    EXPECT_EQ(probe.StressMoments(1), momentsOf(std::vector<double>{-4.0, 2.0, 0.0}));
    EXPECT_EQ(probe.seriesUW.values, columnOf({-16, 8, 0}, 0.25));
    EXPECT_EQ(probe.seriesUW.moments, probe.StressMoments(1));
    EXPECT_EQ(probe.seriesVW.values.GetScale(), 1.0);

    computeStressStatistics(probe);
    EXPECT_DOUBLE_EQ(probe.statistics[12], 14.0 / 3.0);
    EXPECT_EQ(probe.statistics[15], 2.5);
    EXPECT_EQ(probe.statistics[16], -1.25);
    EXPECT_EQ(probe.statistics[17], -0.75);

    formStresses(probe, StressResolution::StreamwiseU);
    EXPECT_EQ(stresses.GetAt(2), columnOf({0, 4, -4, -6}, 0.5));
}

TEST(SeriesIntegrals, EndBeforeTheLastIndex) {
    STimeSeries series;
    series.samplingInterval = 0.5;
    series.moments.variance = 2.0;
    series.correlation = columnOf({8, 6, 4, 2, 100}, 1.0);
    EXPECT_EQ(correlationIntegral(series, 0, 4), ((4 + 3) + (3 + 2) + (2 + 1)) * 0.5 * 0.5);
    EXPECT_EQ(correlationIntegral(series, 2, 4), 1.5 * 0.5);
    EXPECT_EQ(correlationIntegral(series, 3, 4), 0.0);
    EXPECT_EQ(correlationIntegral(series, 9, 4), 0.0);
    EXPECT_EQ(correlationIntegral(series, 3, 500), (1 + 50) * 0.5 * 0.5);
    EXPECT_THROW(correlationIntegral(series, -1, 4), InvalidArgument);

    series.spectrum = columnOf({8, 6, 4, 2, 100}, 1.0);
    const double sum = 7.0 + 5.0 + 3.0;
    EXPECT_DOUBLE_EQ(spectrumIntegral(series, 0, 5), sum / (2.0 * 5 * 0.5));
    EXPECT_DOUBLE_EQ(spectrumIntegral(series, 0, 50), sum / (2.0 * 5 * 0.5));
    EXPECT_EQ(spectrumIntegral(series, 3, 5), 0.0);
    series.unitSelector = 1;
    EXPECT_DOUBLE_EQ(spectrumIntegral(series, 0, 5), sum * 3.14 / (5 * 0.5));
    series.unitSelector = 7;
    EXPECT_EQ(spectrumIntegral(series, 0, 5), 0.0);
    EXPECT_EQ(spectrumIntegral(STimeSeries(), 0, 5), 0.0);
}

}  // namespace
}  // namespace vorlan::test
