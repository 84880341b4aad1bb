#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <vector>

#include "analysis/CDisRateExtractor.h"
#include "analysis/PowerLawFit.h"
#include "analysis/SpectralScale.h"
#include "analysis/TurbulenceScales.h"

namespace vorlan {
namespace {

constexpr auto kSpectrum = DissipationSource::Spectrum;
constexpr auto kStructure = DissipationSource::Structure;
constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

SAdvProbe probeWithFunctions() {
    SAdvProbe probe;
    probe.samplingInterval = 0.04;
    for (int c = 0; c < 3; ++c) {
        STimeSeries& series = probe.Series(c);
        series.samplingInterval = probe.samplingInterval;
        series.moments = {3.0 + c, 4.0, 0.0, 0.0};
        series.correlation.SetScale(1e-5);
        series.spectrum.SetScale(1e-7);
        for (int k = 0; k < 50; ++k) {
            series.correlation.AddValue(4.0 * std::exp(-0.1 * (c + 1) * k));
            series.spectrum.AddValue(2.0 / (1.0 + k * (c + 1)));
        }
    }
    return probe;
}

TEST(DissipationRate, FollowsTheFormulas) {
    SAdvProbe probe = probeWithFunctions();
    WorkspaceSettings settings;
    EXPECT_DOUBLE_EQ(convectiveVelocity(probe, settings), std::sqrt(9.0 + 16.0 + 25.0));
    settings.meanVelocity = {MeanVelocityMode::User, 23.7};
    for (const auto& [unit, expected] : {std::pair(0U, 5.302266082006752), std::pair(1U, 0.8438818565400845)}) {
        probe.spectralUnit = unit;
        EXPECT_DOUBLE_EQ(dissipationRate({kSpectrum, 2.5, 0.8}, probe, settings), expected);
    }
    EXPECT_DOUBLE_EQ(dissipationRate({kStructure, 0.25, 4.2}, probe, settings), 0.5460516677438991);
    EXPECT_EQ(dissipationRate({kStructure, 0.0, 4.2}, probe, settings), kInfinite);
    EXPECT_EQ(dissipationFromSpectrum(2.5, 0.8, 0, 0.0), kInfinite);
}

struct Axes {
    int kind;
    double xMinimum, yMinimum, xScale, yScale;
};

/// Pixels of the line by a plain reading of its rule: column to row.
std::map<int, int> lineByHand(const Axes& axes, int px, int py, double p) {
    const bool logX = axes.kind == 1 || axes.kind == 2;
    const bool logY = axes.kind == 1 || axes.kind == 3;
    const auto x = [&](int column) {
        return logX ? std::pow(10.0, std::log10(axes.xMinimum) + (column - 40) / axes.xScale)
                    : (column - 40) * axes.xScale + axes.xMinimum;
    };
    const double y = logY ? std::pow(10.0, std::log10(axes.yMinimum) + (160 - py) / axes.yScale)
                          : (160 - py) * axes.yScale + axes.yMinimum;
    std::map<int, int> rows;
    for (int i = 0; i <= 98; ++i) {
        const double value = y * std::pow(x(px + i) / x(px), p);
        const double offset = logY ? (std::log10(value) - std::log10(axes.yMinimum)) * axes.yScale
                                   : (value - axes.yMinimum) / axes.yScale;
        rows[px + i] = 160 - static_cast<int>(offset);
    }
    return rows;
}

TEST(DisRateExtractor, SetsThePixelsOfItsLineAndPutsThemBack) {
    constexpr int kWidth = 300;
    constexpr int kHeight = 170;
    constexpr PixelImage::Colour kInk = 0xFF000000U;
    const Axes allAxes[] = {
        {0, 0.1, 0.5, 0.01, 0.02}, {1, 0.01, 1e-4, 80.0, 30.0}, {2, 0.01, 0.5, 80.0, 0.02}, {3, 0.1, 1e-4, 0.01, 30.0}};
    for (const Axes& axes : allAxes) {
        for (const DissipationSource source : {kSpectrum, kStructure}) {
            SCOPED_TRACE(testing::Message() << "scale kind " << axes.kind << ", source " << static_cast<int>(source));
            std::vector<PixelImage::Colour> pixels(kWidth * kHeight);
            for (std::size_t i = 0; i < pixels.size(); ++i) {
                pixels[i] = 0xFF000000U + static_cast<PixelImage::Colour>(i % 251 + 1);
            }
            const std::vector<PixelImage::Colour> before = pixels;
            PixelImage image(pixels.data(), kWidth, kHeight, kWidth);
            CDisRateExtractor extractor;
            extractor.Initialise(40, 160, axes.xMinimum, axes.yMinimum, axes.xScale, axes.yScale, axes.kind, 0, 10.0);

            // The second line leaves the picture at the right.
            for (const int px : {90, 250}) {
                extractor.SaveBackground(source, image, px, 80);
                extractor.DrawLine(source, image, px, 80, kInk);
                std::vector<PixelImage::Colour> expected = before;
                const std::map<int, int> drawn = lineByHand(axes, px, 80, source == kSpectrum ? -1.66666 : 0.66666666);
                for (const auto& [column, row] : drawn) {
                    if (column < kWidth && row >= 0 && row < kHeight) {
                        expected[static_cast<std::size_t>(row * kWidth + column)] = kInk;
                    }
                }
                EXPECT_EQ(pixels, expected);

                extractor.RestoreBackground(source, image, px, 80);
                for (const auto& [column, row] : lineByHand(axes, px, 80, source == kSpectrum ? -1.66666 : 0.66666)) {
                    if (column < kWidth && row >= 0 && row < kHeight) {
                        const auto at = static_cast<std::size_t>(row * kWidth + column);
                        expected[at] = before[at];
                    }
                }
                EXPECT_EQ(pixels, expected);
                pixels = before;
            }
            EXPECT_EQ(extractor.YPixel(extractor.YValue(80)), lineByHand(axes, 90, 80, 1.0).at(90));
            EXPECT_EQ(extractor.DissipationRate(source, 90, 80),
                      dissipationRate({source, extractor.XValue(90), extractor.YValue(80)}, 0, 10.0));
        }
    }
}

TEST(TurbulenceScales, LimitsBecomeIndexes) {
    struct Case {
        double from, to, step;
        IndexRange range;
    };
    constexpr int kMost = std::numeric_limits<int>::max();
    for (const Case& c :
         {Case{0.0, 1.0, 0.25, {0, 4}}, Case{0.3, 0.99, 0.25, {1, 3}}, Case{-3.0, -0.5, 0.25, {0, 1}},
          Case{-0.1, -0.1, 0.25, {0, 0}}, Case{2.0, 1.0, 0.5, {4, 2}}, Case{1e300, kInfinite, 0.5, {kMost, kMost}},
          Case{-kInfinite, -1e300, 0.5, {0, 1}}, Case{kNoNumber, kNoNumber, 0.5, {0, 1}}}) {
        EXPECT_EQ(indexRange(c.from, c.to, c.step), c.range) << c.from << " to " << c.to;
    }
    EXPECT_TRUE(indexRange(1.0, 1.1, 0.25).isEmpty());
}

TEST(TurbulenceScales, AreTheIntegralsBetweenTheLimits) {
    SAdvProbe probe = probeWithFunctions();
    // Lags 5 to 19 are joined: the last index is left out.
    const auto lags = indexRange({ScalesSource::Correlation, 0.21, 0.83}, probe);
    ASSERT_EQ(lags, (IndexRange{5, 20}));
    const auto scales = integratedScales(ScalesSource::Correlation, probe, lags);
    for (std::size_t c = 0; c < 3; ++c) {
        const SArray& r = probe.Series(static_cast<int>(c)).correlation;
        double sum = 0.0;
        for (int k = 5; k <= 18; ++k) {
            sum += (r.GetValue(k) / 4.0 + r.GetValue(k + 1) / 4.0) * 0.5;
        }
        EXPECT_EQ(scales[c], sum * 0.04);
    }
    for (const std::uint32_t unit : {0U, 1U}) {
        probe.spectralUnit = unit;
        const double step = unit == 0 ? 1.0 / (2.0 * 50 * 0.04) : 3.14 / (50 * 0.04);
        const auto range = indexRange({ScalesSource::Spectrum, 2.5 * step, 100.0 * step}, probe);
        ASSERT_EQ(range, (IndexRange{2, 100}));
        probe.seriesV.unitSelector = unit;
        double sum = 0.0;
        for (int k = 2; k <= 47; ++k) {
            sum += (probe.seriesV.spectrum.GetValue(k) + probe.seriesV.spectrum.GetValue(k + 1)) * 0.5;
        }
        EXPECT_EQ(integratedScales(ScalesSource::Spectrum, probe, range)[1], sum * step);
    }
}

TEST(PowerLawFit, FindsTheExponentOfThePointsThatHaveLogarithms) {
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 1; i < 40; ++i) {
        x.push_back(0.1 * i);
        y.push_back(7.0 * std::pow(0.1 * i, -1.25) * (i % 2 == 0 ? 1.1 : 1.0 / 1.1));
    }
    const auto clean = powerLawExponent(x, y);
    ASSERT_TRUE(clean.has_value());
    EXPECT_NEAR(*clean, -1.25, 0.05);
    x.insert(x.end(), {0.0, 1.0, 2.0, -1.0});
    y.insert(y.end(), {5.0, kNoNumber, 0.0, 3.0});
    EXPECT_EQ(powerLawExponent(x, y), clean);
    EXPECT_EQ(powerLawExponent(std::vector{2.0, 2.0}, std::vector{1.0, 3.0}), std::nullopt);
}

}  // namespace
}  // namespace vorlan
