#include "analysis/Editing.h"

#include <gtest/gtest.h>
#include <algorithm>

#include <cmath>

#include "Records.h"
#include "analysis/Clipping.h"
#include "analysis/EditingAssessment.h"
#include "analysis/ProbeMoments.h"

namespace vorlan::test {
namespace {

/// Velocities of resolution 1 with equal scores in every beam.
SAdvProbe smallRecord(const std::vector<std::int32_t>& u, const std::vector<std::int32_t>& scores) {
    SAdvProbe probe = probeOf({u, u, u});
    probe.samplingInterval = 0.04;
    for (int c = 0; c < 3; ++c) {
        probe.workTables[SAdvProbe::kCorrelation].Add(columnOf(scores, 1.0));
        probe.workTables[SAdvProbe::kSignalToNoise].Add(columnOf(scores, 1.0));
    }
    return probe;
}

std::vector<std::int32_t> marksOf(const SAdvProbe& probe) {
    return {probe.sampleFlags.begin(), probe.sampleFlags.end()};
}

TEST(Editing, SpikesAreDecidedByTheFormulaToTheLastBit) {
    std::vector<std::int32_t> units;
    std::uint32_t seed = 1;
    for (int i = 0; i < 300; ++i) {
        seed = seed * 1664525U + 1013904223U;
        units.push_back(static_cast<std::int32_t>(seed >> 20));
    }
    SAdvProbe probe = smallRecord(units, std::vector<int>(units.size(), 99));
    probe.useAllSamples = 0;
    const double dt = probe.samplingInterval;
    const auto e = [&](int c, int i) {
        const SArray& x = velocity(probe, c);
        return ((x.GetValue(i) - x.GetValue(i - 1)) - (x.GetValue(i + 1) - x.GetValue(i))) / dt;
    };
    std::vector<double> accelerations;
    for (int i = 1; i + 1 < static_cast<int>(units.size()); ++i) {
        accelerations.push_back(std::sqrt(e(0, i) * e(0, i) + e(1, i) * e(1, i) + e(2, i) * e(2, i)));
    }
    // Thresholds at and beside the acceleration of a sample.
    for (std::size_t k = 0; k < accelerations.size(); k += 7) {
        for (const double factor : {1.0 - 1e-15, 1.0, 1.0 + 1e-15, 1.0 + 2e-9, 1.0 - 2e-9}) {
            const double threshold = accelerations[k] / 981.0 * factor;
            const auto above = std::count_if(accelerations.begin(), accelerations.end(),
                                             [&](double a) { return 981.0 * threshold < a; });
            SAdvProbe marked = probe;
            ASSERT_EQ(filterSpikes(marked, threshold).bad, above) << k << ' ' << factor;
        }
    }
}

/// The whole screening once more, sample by sample over plain values.
struct PlainEditing {
    std::array<std::vector<std::int32_t>, 3> x;
    std::array<double, 3> scales{};
    std::vector<std::int32_t> marks;
    bool replace = false;
    double value(std::size_t c, std::size_t i) const { return x[c][i] * scales[c]; }
    void repair(std::size_t c, std::size_t i) {
        x[c][i] = static_cast<std::int32_t>((value(c, i - 1) + value(c, i + 1)) * 0.5 / scales[c]);
    }
};

TEST(Editing, AllTestsInOrderOnWholeAndClippedRecords) {
    for (const bool replace : {true, false}) {
        for (const bool clipped : {true, false}) {
            // Quiet around the threshold, with spikes: whether a sample is one changes as its neighbour is repaired.
            SAdvProbe probe = velocityRecord(9003, 7);
            for (SArray& column : probe.sampledTables[SAdvProbe::kVelocities]) {
                for (std::int32_t& n : column.view()) {
                    n = n % 50 == 0 ? n : n / 2000;
                }
            }
            probe.Reset();
            computeProbeMoments(probe);
            if (clipped) {
                clip(probe, 1.0, 350.0);
                probe.workTables[1] = probe.sampledTables[1];  // scores longer than the record
            }
            EditingSettings settings;
            settings.correlation = {true, ScoreStatistic::Minimum, 99.0, 60.0};
            settings.signalToNoise = {true, ScoreStatistic::Average, 9.0, 99.0};
            settings.spikeFilter = true;
            settings.accelerationThreshold = replace ? 0.02 : 4.0;
            settings.velocityTest = true;
            settings.velocityThreshold = 1.2;
            settings.treatment = replace ? BadSampleTreatment::Interpolate : BadSampleTreatment::Remove;

            PlainEditing plain;
            plain.replace = replace;
            plain.scales = {0.001, 0.01, 0.002};
            plain.marks = marksOf(probe);
            for (std::size_t c = 0; c < 3; ++c) {
                plain.x[c] = unitsOf(velocity(probe, static_cast<int>(c)));
            }
            int bad[4] = {};
            const auto score = [&](int table, int beam, std::size_t i) {
                return probe.workTables[static_cast<std::size_t>(table)].GetAt(beam).GetAt(static_cast<int>(i)) * 0.1;
            };
            for (int test = 0; test < 4; ++test) {
                for (std::size_t i = 1; i + 1 < plain.x[0].size(); ++i) {
                    std::vector<std::size_t> hit;
                    if (test == 0 && std::min({score(1, 0, i), score(1, 1, i), score(1, 2, i)}) < 60.0) {
                        hit = {0, 1, 2};
                    }
                    if (test == 1 && (score(2, 0, i) + score(2, 1, i) + score(2, 2, i)) / 3 < 9.0) {
                        hit = {0, 1, 2};
                    }
                    if (test == 2) {
                        double square = 0.0;
                        for (std::size_t c = 0; c < 3; ++c) {
                            const double e = (plain.value(c, i) - plain.value(c, i - 1) -
                                              (plain.value(c, i + 1) - plain.value(c, i))) /
                                             0.04;
                            square += e * e;
                        }
                        if (981.0 * settings.accelerationThreshold < std::sqrt(square)) {
                            hit = {0, 1, 2};
                        }
                    }
                    for (std::size_t c = 0; test == 3 && c < 3; ++c) {
                        const Moments m = probe.VelocityMoments(static_cast<int>(c));
                        if (std::fabs(plain.value(c, i) - m.mean) > 1.2 * std::sqrt(m.variance)) {
                            hit.push_back(c);
                        }
                    }
                    if (hit.empty()) {
                        continue;
                    }
                    plain.marks[i] = 0;
                    bad[test] += test == 3 ? static_cast<int>(hit.size()) : 1;
                    for (const std::size_t c : hit) {
                        if (replace) {
                            plain.repair(c, i);
                        }
                    }
                }
            }

            const EditingResult result = editSeries(probe, settings);
            EXPECT_EQ(result.correlation.bad, bad[0]);
            EXPECT_EQ(result.signalToNoise.bad, bad[1]);
            EXPECT_EQ(result.spikes.bad, bad[2]);
            EXPECT_EQ(result.velocity.bad, bad[3]);
            for (const int count : bad) {
                EXPECT_GT(count, 0);
            }
            EXPECT_EQ(marksOf(probe), plain.marks);
            for (std::size_t c = 0; c < 3; ++c) {
                EXPECT_EQ(unitsOf(velocity(probe, static_cast<int>(c))), plain.x[c]);
            }
            const SAdvProbe edited = probe;
            computeProbeMoments(probe);
            for (int c = 0; c < 3; ++c) {
                EXPECT_EQ(edited.VelocityMoments(c), probe.VelocityMoments(c));
            }
            EXPECT_EQ(probe.title, "Cleaned-up time series (" + std::to_string(bad[3]) + " samples replaced)");
        }
    }
}

TEST(Editing, RemovalForgetsFourStagesAndTheirLastTabs) {
    SAdvProbe probe = velocityRecord(50);
    for (const int stage : {3, 1, 2, 4, 5, 6}) {
        probe.tabItems.AppendStage(stage);
    }
    TabItem second;
    second.imageIndex = 3;
    probe.tabItems.Add(second);
    probe.tabItems.Add(probe.tabItems.GetAt(0));
    probe.selectedTab = 8;                 // the last one, behind all that are deleted
    probe.stageDone = {0, 1, 1, 1, 1, 1};  // the stationarity tab stays: its mark is not set
    EditingSettings settings;
    settings.treatment = BadSampleTreatment::Remove;
    settings.correlation = {true, ScoreStatistic::Average, 1e9, 0.0};
    editSeries(probe, settings);
    EXPECT_EQ(probe.stageDone, (std::array<std::uint32_t, 6>{0, 1, 0, 1, 0, 0}));
    std::vector<std::uint32_t> tabs;
    for (const TabItem& item : probe.tabItems) {
        tabs.push_back(item.imageIndex);
    }
    EXPECT_EQ(tabs, (std::vector<std::uint32_t>{0, 3, 1, 2, 4, 0}));
    EXPECT_EQ(probe.selectedTab, 5);
    EXPECT_FALSE(probe.UsesAllSamples());
    // Every tested sample is bad: the two ends are left.
    EXPECT_EQ(probe.seriesUV.values.GetSize(), 2);
    // Interpolation lets all samples count again, its marks stay.
    editSeries(probe, EditingSettings());
    EXPECT_TRUE(probe.UsesAllSamples());
    EXPECT_EQ(marksOf(probe)[1], 0);
}

TEST(Editing, ShortRecordsAreNotTestedAndShortScoresRefused) {
    SAdvProbe two = smallRecord({0, 1000}, {0, 0});
    EditingSettings settings;
    settings.correlation.on = settings.signalToNoise.on = settings.spikeFilter = settings.velocityTest = true;
    const EditingResult result = editSeries(two, settings);
    EXPECT_EQ(result.correlation.bad + result.signalToNoise.bad + result.spikes.bad + result.velocity.bad, 0);
    EXPECT_EQ(result.correlation.keptShare(), 1.0);

    SAdvProbe probe = velocityRecord(20);
    probe.workTables[1].ElementAt(2).SetSize(10);
    EXPECT_THROW(editSeries(probe, settings), InvalidArgument);
}

}  // namespace
}  // namespace vorlan::test
