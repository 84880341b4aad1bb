#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "analysis/DissipationRate.h"
#include "analysis/PowerLawFit.h"
#include "analysis/SpectralScale.h"
#include "analysis/TurbulenceScales.h"

namespace vorlan {
namespace {

constexpr auto kSpectrum = DissipationSource::Spectrum;
constexpr auto kStructure = DissipationSource::Structure;
constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

TEST(DissipationRate, FollowsTheFormulas) {
    SAdvProbe probe;
    for (int c = 0; c < 3; ++c) {
        probe.Series(c).moments.mean = 3.0 + c;
    }
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
