#include <gtest/gtest.h>

#include <algorithm>

#include "Records.h"
#include "analysis/EventPatterns.h"
#include "analysis/HoleSweep.h"
#include "analysis/Quadrants.h"
#include "analysis/Stresses.h"
#include "model/DefaultFrames.h"
#include "model/StageLimits.h"
#include "model/StageSettings.h"

namespace vorlan::test {
namespace {

int plainQuadrant(double a, double b) {
    if (a > 0.0 && b > 0.0) {
        return 0;
    }
    if (a < 0.0 && b > 0.0) {
        return 1;
    }
    if (a < 0.0 && b < 0.0) {
        return 2;
    }
    return a > 0.0 && b < 0.0 ? 3 : 4;
}

/// The four result sets as stored integers, by the definitions: one loop over the samples per hole size and lag.
struct PlainQuadrants {
    std::array<std::vector<std::int32_t>, 5> contributions, times;
    std::array<std::vector<std::int32_t>, 2> ejection, sweep;
};

/// The average of x around the events, lag by lag.
std::vector<std::int32_t> plainPattern(const std::vector<double>& x, const std::vector<std::size_t>& events, int lag,
                                       double deviation) {
    std::vector<std::int32_t> pattern;
    for (int tau = -lag; tau <= lag; ++tau) {
        double sum = 0.0;
        int count = 0;
        for (const std::size_t event : events) {
            const long j = static_cast<long>(event) + tau;
            if (j >= 0 && j < static_cast<long>(x.size())) {
                sum += x[static_cast<std::size_t>(j)];
                ++count;
            }
        }
        pattern.push_back(count == 0 || sum == 0.0 ? 0 : held(sum / count / deviation, 1e-4));
    }
    return pattern;
}
double plainDeviation(const std::vector<double>& fluctuations) {
    double squares = 0.0;
    for (const double v : fluctuations) {
        squares += v * v;
    }
    return std::sqrt(squares / (static_cast<double>(fluctuations.size()) - 1.0));
}

/// The probe's stresses must have been formed.
PlainQuadrants plainQuadrants(const SAdvProbe& probe, const QuadrantSettings& settings) {
    const auto fluctuations = fluctuationsOf(probe);
    const int first = kFirst[settings.stressType];
    const int second = kSecond[settings.stressType];
    const auto& a = fluctuations[static_cast<std::size_t>(first)];
    const auto& b = fluctuations[static_cast<std::size_t>(second)];
    const std::vector<double> s = probe.workTables[5].GetAt(settings.stressType).Values();
    const double m = meanOf(s);

    PlainQuadrants plain;
    const int sizes = static_cast<int>(settings.maximum / settings.increment);
    for (int h = 0; h < sizes; ++h) {
        const double hole = h * settings.increment;
        std::array<std::uint32_t, 5> units{};
        std::array<int, 5> counts{};
        for (std::size_t j = 0; j < s.size(); ++j) {
            const double r = s[j] / m;
            const auto bucket = static_cast<std::size_t>(std::fabs(r) > hole ? plainQuadrant(a[j], b[j]) : 4);
            units[bucket] += static_cast<std::uint32_t>(held(r, 1e-5));
            ++counts[bucket];
        }
        double total = 0.0;
        int samples = 0;
        for (std::size_t q = 0; q < 5; ++q) {
            total += static_cast<std::int32_t>(units[q]) * 1e-5;
            samples += counts[q];
        }
        for (std::size_t q = 0; q < 5; ++q) {
            plain.contributions[q].push_back(held(static_cast<std::int32_t>(units[q]) * 1e-5 / total, 1e-5));
            plain.times[q].push_back(held(static_cast<double>(counts[q]) / samples, 1e-5));
        }
    }

    std::array<std::vector<std::size_t>, 2> events;
    for (std::size_t j = 0; j < s.size(); ++j) {
        const int quadrant = plainQuadrant(a[j], b[j]);
        if (m != 0.0 && quadrant == (m < 0.0 ? 1 : 0) && s[j] / m > settings.ejectionThreshold) {
            events[0].push_back(j);
        }
        if (m != 0.0 && quadrant == (m < 0.0 ? 3 : 2) && s[j] / m > settings.sweepThreshold) {
            events[1].push_back(j);
        }
    }
    const int lag = static_cast<int>(settings.maximumLag / probe.samplingInterval);
    for (std::size_t c = 0; c < 2; ++c) {
        const double deviation = plainDeviation(c == 0 ? a : b);
        plain.ejection[c] = plainPattern(c == 0 ? a : b, events[0], lag, deviation);
        plain.sweep[c] = plainPattern(c == 0 ? a : b, events[1], lag, deviation);
    }
    return plain;
}

void expectPlainResults(const SAdvProbe& probe, const QuadrantSettings& settings) {
    const PlainQuadrants plain = plainQuadrants(probe, settings);
    ASSERT_EQ(probe.stageTables[0].GetSize(), 5);
    ASSERT_EQ(probe.stageTables[1].GetSize(), 5);
    ASSERT_EQ(probe.stageTables[2].GetSize(), 2);
    ASSERT_EQ(probe.stageTables[3].GetSize(), 2);
    for (int q = 0; q < 5; ++q) {
        EXPECT_EQ(unitsOf(probe.stageTables[0].GetAt(q)), plain.contributions[static_cast<std::size_t>(q)]);
        EXPECT_EQ(unitsOf(probe.stageTables[1].GetAt(q)), plain.times[static_cast<std::size_t>(q)]);
        EXPECT_EQ(probe.stageTables[0].GetAt(q).GetScale(), 1e-5);
        EXPECT_EQ(probe.stageTables[1].GetAt(q).GetScale(), 1e-5);
    }
    for (int c = 0; c < 2; ++c) {
        EXPECT_EQ(unitsOf(probe.stageTables[2].GetAt(c)), plain.ejection[static_cast<std::size_t>(c)]);
        EXPECT_EQ(unitsOf(probe.stageTables[3].GetAt(c)), plain.sweep[static_cast<std::size_t>(c)]);
        EXPECT_EQ(probe.stageTables[2].GetAt(c).GetScale(), 1e-4);
        EXPECT_EQ(probe.stageTables[3].GetAt(c).GetScale(), 1e-4);
    }
}

TEST(Quadrants, HoldTheIntegersOfThePlainLoops) {
    for (const double coupling : {-0.4, 0.4}) {
        for (int type = 0; type < 3; ++type) {
            for (const int samples : {1, 2, 3, 333, 2000}) {
                SAdvProbe probe = correlatedProbe(samples, coupling);
                formStresses(probe);
                for (const QuadrantSettings& settings :
                     std::initializer_list<QuadrantSettings>{{0.2, 20.0, 1.0, 2.0, 2.0, type},
                                                             {0.3, 4.1, 0.0, 0.0, 20.0, type},
                                                             {2.0, 2.0, 3.0, 0.5, 0.03, type},
                                                             {0.001, 2.0, 1.0, 1.0, 3.21, type}}) {
                    SCOPED_TRACE(testing::Message() << "coupling " << coupling << " type " << type << " samples "
                                                    << samples << " increment " << settings.increment);
                    NoProgress silent;
                    analyseQuadrants(probe, settings, silent);
                    expectPlainResults(probe, settings);
                }
            }
        }
    }
}

TEST(Quadrants, WrapWhenASumLeavesThirtyTwoBits) {
    // A mean stress near 0 makes every r large; the sums of the units then wrap.
    SAdvProbe probe = probeOf({});
    for (int i = 0; i < 600; ++i) {
        velocity(probe, 0).Add(i % 2 == 0 ? 3 : -3);
        velocity(probe, 2).Add(i % 4 < 2 ? 100 : -100);
    }
    velocity(probe, 1).SetSize(601);
    velocity(probe, 0).Add(1);
    velocity(probe, 2).Add(1);
    NoProgress silent;
    const QuadrantSettings settings{50.0, 1000.0, 1.0, 2.0, 2.0, 1};
    analyseQuadrants(probe, settings, silent);
    expectPlainResults(probe, settings);
}

TEST(Quadrants, WithANegativeIncrementAverageOnly) {
    SAdvProbe probe = correlatedProbe(400, -0.4);
    NoProgress silent;
    for (const double maximum : {20.0, -20.0}) {
        analyseQuadrants(probe, {-0.2, maximum, 1.0, 2.0, 2.0, 1}, silent);
        EXPECT_TRUE(probe.stageTables[SAdvProbe::kContributions].HasNoValues());
        EXPECT_EQ(probe.stageTables[SAdvProbe::kEjectionPattern].GetAt(0).GetSize(), 101);
    }
}

TEST(Quadrants, RefuseWhatMemoryCannotBear) {
    SAdvProbe probe = correlatedProbe(50, -0.4);
    const SAdvProbe before = probe;
    NoProgress silent;
    for (const QuadrantSettings& settings :
         std::initializer_list<QuadrantSettings>{{1e-9, 20.0, 1.0, 2.0, 2.0, 1},
                                                 {0.0, 20.0, 1.0, 2.0, 2.0, 1},
                                                 {0.2, std::nan(""), 1.0, 2.0, 2.0, 1},
                                                 {0.2, 20.0, 1.0, 2.0, 1e9, 1}}) {
        EXPECT_NE(analyseQuadrants(probe, settings, silent).find("no more than 1000000 "), std::string::npos);
    }
    for (const int stress : {3, -1}) {
        EXPECT_THROW(analyseQuadrants(probe, {0.2, 20.0, 1.0, 2.0, 2.0, stress}, silent), InvalidArgument);
    }
    EXPECT_EQ(probe, before);
    // At the limits themselves it runs.
    analyseQuadrants(probe, {1.0, kMaximumHoleSizes, 1.0, 2.0, 2.0, 1}, silent);
    EXPECT_EQ(probe.stageTables[SAdvProbe::kTimes].GetAt(4).GetSize(), kMaximumHoleSizes);
}

std::string patternTitles(const SAdvProbe& probe) {
    const SFrameAtrArray& frames = probe.frameAttributes[5];
    std::string titles;
    for (const int record : {1, 3}) {
        titles += (record < frames.GetSize() ? frames.GetAt(record).plotTitle : "none") + "|";
    }
    return titles;
}

TEST(Quadrants, TitleThePatternsByTheirEvents) {
    const std::string interactions =
        "Outward Interactions (dimensionless velocities)|Inward Interactions (dimensionless velocities)|";
    const std::string defaults = "Ejection (dimensionless velocities)|Sweep (dimensionless velocities)|";
    NoProgress silent;
    SAdvProbe negative = correlatedProbe(300, -0.4);
    analyseQuadrants(negative, QuadrantSettings(), silent);
    EXPECT_EQ(patternTitles(negative), "none|none|");

    SAdvProbe positive = correlatedProbe(300, 0.4);
    analyseQuadrants(positive, QuadrantSettings(), silent);
    EXPECT_EQ(patternTitles(positive), interactions);
    EXPECT_EQ(positive.frameAttributes[5].GetAt(0), defaultFrame(5, 0));
    EXPECT_EQ(positive.frameAttributes[5].GetSize(), 4);
    // The other pair's mean stress has the other sign.
    QuadrantSettings vw;
    vw.stressType = 2;
    analyseQuadrants(positive, vw, silent);
    EXPECT_EQ(patternTitles(positive), defaults);
    positive.coordinateSystem = 0;
    analyseQuadrants(positive, vw, silent);
    EXPECT_EQ(patternTitles(positive), interactions);

    createDefaultFrames(negative);
    negative.frameAttributes[5].ElementAt(1).plotTitle = "mine";
    analyseQuadrants(negative, QuadrantSettings(), silent);
    EXPECT_EQ(patternTitles(negative), "mine|Sweep (dimensionless velocities)|");
}

}  // namespace
}  // namespace vorlan::test
