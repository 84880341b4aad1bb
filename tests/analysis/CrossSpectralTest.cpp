#include <gtest/gtest.h>

#include "Records.h"
#include "analysis/AnalysedSeries.h"
#include "analysis/CrossSpectralAnalysis.h"
#include "analysis/CrossSpectralFunctions.h"
#include "analysis/RecordingProgress.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/Stresses.h"

namespace vorlan::test {
namespace {

/// That of the other spectra but for Bartlett.
double plainWeight(int code, int k, int length) {
    return code == 2 ? (1.0 - k) / length : plainLagWindow(code, k, length);
}

/// The six cross-spectral sets of one pair as stored integers, by the definitions.
struct PlainPair {
    std::vector<std::int32_t> forward, backward, co, quadrature, phase, coherence;
};

std::vector<std::int32_t> plainCovariance(const std::vector<double>& x, const std::vector<double>& y, int lags) {
    std::vector<std::int32_t> result;
    for (int k = 0; k < lags; ++k) {
        const int n = static_cast<int>(x.size()) - k;
        double sum = 0.0;
        for (int j = 0; j <= n - 2; ++j) {
            sum += x[static_cast<std::size_t>(j + k)] * y[static_cast<std::size_t>(j)];
        }
        result.push_back(held(sum / n, 1e-7));
    }
    return result;
}

PlainPair plainPair(const SAdvProbe& probe, int pair) {
    const auto fluctuations = fluctuationsOf(probe);
    const auto& x = fluctuations[static_cast<std::size_t>(kFirst[pair])];
    const auto& y = fluctuations[static_cast<std::size_t>(kSecond[pair])];
    const int lags = static_cast<int>(probe.spectralLags);
    const int code = static_cast<int>(probe.spectralWindow);
    const double dt = probe.samplingInterval;
    PlainPair plain;
    plain.forward = plainCovariance(x, y, lags);
    plain.backward = plainCovariance(y, x, lags);
    const auto half = [&](int k, double sign) {
        const auto i = static_cast<std::size_t>(k);
        return held((plain.forward[i] * 1e-7 + sign * (plain.backward[i] * 1e-7)) * 0.5, 1e-7) * 1e-7;
    };
    const auto scaled = [&](double zero, double sum) {
        return probe.spectralUnit == 1 ? (zero + 2.0 * sum) * dt / kWrittenPi : 2.0 * (zero + 2.0 * sum) * dt;
    };
    for (int i = 0; i < lags; ++i) {
        double sum = 0.0;
        for (int k = 1; k <= lags - 2; ++k) {
            sum += plainWeight(code, k, lags) * half(k, 1.0) * std::cos(i * kWrittenPi * k / lags);
        }
        plain.co.push_back(held(scaled(half(0, 1.0), sum), 1e-7));
    }
    plain.quadrature.push_back(0);
    for (int i = 1; i <= lags - 2; ++i) {
        double sum = 0.0;
        for (int k = 1; k <= lags - 1; ++k) {
            sum += plainWeight(code, k, lags) * half(k, -1.0) * std::sin(i * kWrittenPi * k / lags);
        }
        plain.quadrature.push_back(held(scaled(half(0, -1.0), sum), 1e-7));
    }
    for (int i = 0; i <= lags - 2; ++i) {
        const double c = plain.co[static_cast<std::size_t>(i)] * 1e-7;
        const double q = plain.quadrature[static_cast<std::size_t>(i)] * 1e-7;
        double degrees = std::atan(q / c) * 180.0 / kWrittenPi;
        if (c < 0.0) {
            degrees = degrees + 180.0;
        } else if (!(q < 0.0)) {
            degrees = degrees + 360.0;
        }
        plain.phase.push_back(held(degrees > 180.0 ? degrees - 360.0 : degrees, 1e-7));
    }
    for (std::size_t i = 0; i < plain.quadrature.size(); ++i) {
        const double c = plain.co[i] * 1e-7;
        const double q = plain.quadrature[i] * 1e-7;
        const double sx = probe.Series(kFirst[pair]).spectrum.GetAt(static_cast<int>(i)) * 1e-7;
        const double sy = probe.Series(kSecond[pair]).spectrum.GetAt(static_cast<int>(i)) * 1e-7;
        const double g = (c * c + q * q) / (sx * sy);
        plain.coherence.push_back(held(std::isnan(g) || g > 1.0 ? 1.0 : g, 1e-7));
    }
    return plain;
}

SAdvProbe spectrallyAnalysed(int samples, int lags, int window, int unit, double coupling = -0.4) {
    SAdvProbe probe = correlatedProbe(samples, coupling);
    formAnalysedSeries(probe);
    NoProgress silent;
    analyseSpectra(probe, {lags, window, unit}, silent);
    return probe;
}

void expectPlainSets(int samples, int lags, int window, int unit) {
    SCOPED_TRACE(testing::Message() << samples << " samples, " << lags << " lags, window " << window);
    SAdvProbe probe = spectrallyAnalysed(samples, lags, window, unit);
    RecordingProgress recorder;
    analyseCrossSpectra(probe, recorder);
    EXPECT_EQ(recorder.texts.front(), "Cross-spectral analysis calculations:");
    EXPECT_EQ(recorder.positions, (std::vector<int>{5, 30, 50, 80, 90, 100}));
    EXPECT_TRUE(probe.IsDone(DoneMark::CrossSpectral));
    for (int pair = 0; pair < 3; ++pair) {
        const PlainPair plain = plainPair(probe, pair);
        const std::pair<const SMultiArray*, const std::vector<std::int32_t>*> sets[] = {
            {&probe.workTables[6], &plain.forward}, {&probe.workTables[7], &plain.backward},
            {&probe.workTables[8], &plain.co},      {&probe.workTables[9], &plain.quadrature},
            {&probe.stageTables[4], &plain.phase},  {&probe.stageTables[5], &plain.coherence}};
        for (const auto& [table, units] : sets) {
            ASSERT_EQ(table->GetSize(), 3);
            EXPECT_EQ(table->GetAt(pair), columnOf(*units, 1e-7));
        }
    }
}

TEST(CrossSpectralAnalysis, HoldsTheIntegersOfThePlainLoops) {
    for (int window = 0; window <= 3; ++window) {
        for (int unit = 0; unit <= 1; ++unit) {
            for (const int lags : {1, 2, 3, 4, 31, 32}) {
                expectPlainSets(64 + lags % 2, lags, window, unit);
            }
        }
    }
    // Long enough for every block of lags and frequencies that the kernels work on at once.
    expectPlainSets(700, 331, 1, 0);
    expectPlainSets(701, 350, 3, 1);
    // The shortest record that has a lag.
    expectPlainSets(2, 1, 0, 0);
}

TEST(CrossSpectralAnalysis, IsRefusedWhenTheRecordBecameTooShort) {
    SAdvProbe probe = spectrallyAnalysed(81, 40, 0, 0);
    NoProgress silent;
    EXPECT_EQ(analyseCrossSpectra(probe, silent), "");
    for (SArray& column : probe.workTables[SAdvProbe::kVelocities]) {
        column.SetSize(79);
    }
    const SAdvProbe before = probe;
    EXPECT_EQ(analyseCrossSpectra(probe, silent),
              "Truncation point too large ! This value exceed of half time series length.");
    EXPECT_EQ(probe, before);
    probe.spectralLags = 0xFFFFFFFFU;
    EXPECT_NE(analyseCrossSpectra(probe, silent), "");
}

TEST(CrossSpectralAnalysis, RefusesInconsistentRecords) {
    NoProgress silent;
    SAdvProbe withoutSpectra = spectrallyAnalysed(60, 10, 0, 0);
    withoutSpectra.seriesW.spectrum.RemoveAll();
    EXPECT_THROW(analyseCrossSpectra(withoutSpectra, silent), InvalidArgument);
    SAdvProbe staleStresses = spectrallyAnalysed(60, 10, 0, 0);
    formStresses(staleStresses);
    staleStresses.workTables[SAdvProbe::kStresses].ElementAt(1).SetSize(59);
    EXPECT_THROW(analyseCrossSpectra(staleStresses, silent), InvalidArgument);
    SAdvProbe empty;
    analyseCrossSpectra(empty, silent);
    EXPECT_TRUE(empty.workTables[SAdvProbe::kCoSpectra].HasNoValues());
}

TEST(CrossSpectralAnalysis, OfAConstantRecordIsCoherentByDefinition) {
    SAdvProbe probe = spectrallyAnalysed(40, 8, 0, 0, 0.0);
    for (SArray& column : probe.workTables[SAdvProbe::kVelocities]) {
        std::fill(column.begin(), column.end(), 16);  // values that sum without rounding, so all deviations are 0
        column.SetScale(0.125);
    }
    formAnalysedSeries(probe);
    NoProgress silent;
    analyseSpectra(probe, {8, 0, 0}, silent);
    analyseCrossSpectra(probe, silent);
    EXPECT_EQ(unitsOf(probe.stageTables[SAdvProbe::kCoherence].GetAt(0)), std::vector<std::int32_t>(7, 10000000));
    EXPECT_EQ(unitsOf(probe.stageTables[SAdvProbe::kPhase].GetAt(2)),
              std::vector<std::int32_t>(7, std::numeric_limits<std::int32_t>::min()));
}

}  // namespace
}  // namespace vorlan::test
