#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "analysis/SpectralAnalysis.h"
#include "analysis/SpectralFunctions.h"
#include "analysis/SpectralSettings.h"
#include "model/Errors.h"

// Runs once for every instruction set of the processor: the build sets VORLAN_SIMD.

namespace vorlan {
namespace {

constexpr double kWrittenPi = 3.141592653589;

class Recorder : public NoProgress {
  public:
    void status(const std::string& text) override { texts.push_back(text); }
    void position(int percent) override { positions.push_back(percent); }

    std::vector<std::string> texts;
    std::vector<int> positions;
};

/// A record with a swing, a slope and noise, in hundredths of cm/s.
SArray velocities(int samples, std::uint32_t seed, double amplitude) {
    SArray values(0.01);
    for (int i = 0; i < samples; ++i) {
        seed = seed * 1664525U + 1013904223U;
        values.AddValue(20.0 + amplitude * std::sin(0.05 * i) + 0.001 * i + static_cast<double>(seed >> 24) / 64.0);
    }
    return values;
}

SAdvProbe analysedProbe(int samples) {
    const double amplitude = 3.0;
    SAdvProbe probe;
    probe.samplingInterval = 0.04;
    probe.seriesU.values = velocities(samples, 1, amplitude);
    probe.seriesV.values = velocities(samples, 2, amplitude / 2);
    probe.seriesW.values = velocities(samples, 3, 0.0);
    return probe;
}

std::int32_t stored(double value, double resolution) {
    const double quotient = value / resolution;
    if (!(std::fabs(quotient) < 2147483648.0)) {
        return std::numeric_limits<std::int32_t>::min();
    }
    return static_cast<std::int32_t>(std::trunc(quotient));
}

double windowByHand(int code, double k, double length) {
    const double x = k / length;
    if (code == 1) {
        return 0.5 * (1.0 + std::cos(kWrittenPi * k / length));
    }
    if (code == 2) {
        return 1.0 - x;
    }
    if (code == 3) {
        return k > length / 2 ? 2 * (1 - x) * (1 - x) * (1 - x) : 1 - 6 * x * x + 6 * x * x * x;
    }
    return 1.0;
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
        result.correlation.push_back(stored(products / (n - k), 1e-5));
        result.structure.push_back(stored(squares / (n - k), 1e-5));
    }
    for (int i = 0; i < lags; ++i) {
        double sum = 0.0;
        for (int k = 1; lags - 1 > 1 && k <= lags - 2; ++k) {
            sum += windowByHand(window, k, lags - 1) * (result.correlation[static_cast<std::size_t>(k)] * 1e-5) *
                   std::cos(kWrittenPi * i * k / (lags - 1));
        }
        const double total = result.correlation[0] * 1e-5 + 2.0 * sum;
        const std::int32_t integer = stored(unit == 1 ? total * interval / kWrittenPi : 2.0 * total * interval, 1e-7);
        const bool turned = integer < 0 && integer != std::numeric_limits<std::int32_t>::min();
        result.spectrum.push_back(turned ? -integer : integer);
    }
    return result;
}

std::vector<std::int32_t> integersOf(const SArray& column) {
    return {column.begin(), column.end()};
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
                SAdvProbe probe = analysedProbe(samples);
                NoProgress progress;
                analyseSpectra(probe, {lags, window, unit}, progress);
                for (int component = 0; component < 3; ++component) {
                    const STimeSeries& series = probe.Series(component);
                    const ByHand expected = byHand(series.values, lags, window, unit, 0.04);
                    ASSERT_EQ(integersOf(series.correlation), expected.correlation) << samples << ' ' << lags;
                    ASSERT_EQ(integersOf(series.structureFunction), expected.structure) << samples << ' ' << lags;
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
    SAdvProbe probe = analysedProbe(50);
    Recorder progress;
    analyseSpectra(probe, {10, 3, 1}, progress);
    EXPECT_EQ(progress.positions, (std::vector<int>{5, 15, 25, 35, 40, 50, 60, 70, 75, 85, 95, 100}));
    const std::vector<std::string> once = {
        "Cov. function calculations: ", "Spectrum calculations: ", "Str. function calculations: "};
    ASSERT_EQ(progress.texts.size(), 9U);
    EXPECT_TRUE(std::equal(once.begin(), once.end(), progress.texts.begin() + 6));
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

TEST(SpectralFunctions, RefuseImpossibleLags) {
    NoProgress progress;
    const std::vector<double> d = {1.0, -1.0, 0.5};
    EXPECT_THROW(autocovariance(d, 4, progress), InvalidArgument);
    EXPECT_THROW(structureFunction(d, -1, progress), InvalidArgument);
    EXPECT_TRUE(autocovariance(d, 0, progress).empty());
    EXPECT_EQ(autocovariance(d, 3, progress), (std::vector<double>{2.25 / 3, -1.5 / 2, 0.5}));
    EXPECT_EQ(structureFunction(d, 3, progress), (std::vector<double>{0.0, (4 + 2.25) / 2, 0.25}));
}

TEST(SpectralSettings, ButtonsAndCodes) {
    EXPECT_EQ(windowCodeOfButton(0), 0);
    EXPECT_EQ(windowCodeOfButton(1), 2);
    EXPECT_EQ(windowCodeOfButton(2), 1);
    EXPECT_EQ(windowCodeOfButton(3), 3);
    EXPECT_EQ(unitSelectorOfButton(0), 1);
    EXPECT_EQ(unitSelectorOfButton(1), 0);

    WorkspaceSettings settings;
    SpectralSettings dialog;
    dialog.windowButton = 1;
    dialog.unitButton = 0;
    dialog.truncationMode = 1;
    dialog.lags = 77;
    dialog.percent = 33;
    dialog.percentFlag = false;
    storeSpectralSettings(dialog, settings);
    EXPECT_EQ(settings.lastWindowCode, 2);
    EXPECT_TRUE(settings.lastUnitIsRad);
    const SpectralSettings again = spectralSettingsOf(settings);
    EXPECT_EQ(again.windowButton, 1);
    EXPECT_EQ(again.unitButton, 0);
    EXPECT_EQ(again.truncationMode, 1);
    EXPECT_EQ(again.lags, 77);
    EXPECT_EQ(again.percent, 33);
    EXPECT_TRUE(again.percentFlag);

    settings.windowButton = 9;
    settings.truncationMode = -3;
    settings.lagPercent = 400;
    EXPECT_EQ(spectralSettingsOf(settings).windowButton, 2);
    EXPECT_EQ(spectralSettingsOf(settings).truncationMode, 0);
    EXPECT_EQ(spectralSettingsOf(settings).percent, 50);
}

TEST(SpectralSettings, TruncationPoint) {
    SpectralSettings settings;
    settings.percent = 50;
    EXPECT_EQ(truncationPoint(settings, 2501), 1250);
    EXPECT_TRUE(truncationPointFits(1250, 2501));
    EXPECT_FALSE(truncationPointFits(1251, 2501));
    settings.truncationMode = 1;
    settings.lags = 40;
    settings.percentFlag = false;
    EXPECT_EQ(truncationPoint(settings, 2501), 40);
    // Reopened and accepted untouched: the lags are read as a percentage.
    settings.percentFlag = true;
    EXPECT_EQ(truncationPoint(settings, 2501), 1000);
    settings.lags = 10000;
    EXPECT_FALSE(truncationPointFits(truncationPoint(settings, 2'000'000'000), 2'000'000'000));

    EXPECT_EQ(refusalOf(settings), "");
    settings.lags = 2;
    EXPECT_EQ(refusalOf(settings), "The truncation point should be grater than 2!");
    settings.truncationMode = 0;
    EXPECT_EQ(refusalOf(settings), "");
    settings.percent = 0;
    EXPECT_EQ(refusalOf(settings), "The truncation point should be grater than 0!");
}

}  // namespace
}  // namespace vorlan
