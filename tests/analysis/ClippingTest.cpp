#include "analysis/Clipping.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "Records.h"
#include "Stored.h"
#include "analysis/ProbeMoments.h"
#include "analysis/Stresses.h"

namespace vorlan::test {
namespace {

std::vector<std::int32_t> slice(const SArray& column, int first, int end) {
    return {column.begin() + first, column.begin() + end};
}

TEST(Clipping, CutsEveryTableAndTheMarksAlike) {
    SAdvProbe probe = velocityRecord(101);
    probe.sampleFlags.SetAt(30, 0);
    const SAdvProbe before = probe;
    ASSERT_TRUE(clip(probe, 1.0, 2.0));
    for (std::size_t t = 0; t < 5; ++t) {
        ASSERT_EQ(probe.workTables[t].GetSize(), before.workTables[t].GetSize());
        for (int c = 0; c < probe.workTables[t].GetSize(); ++c) {
            EXPECT_EQ(unitsOf(probe.workTables[t].GetAt(c)), slice(before.workTables[t].GetAt(c), 25, 50));
            EXPECT_EQ(probe.workTables[t].GetAt(c).GetScale(), before.workTables[t].GetAt(c).GetScale());
        }
    }
    EXPECT_EQ(probe.sampleFlags.GetSize(), 25);
    EXPECT_EQ(probe.sampleFlags.GetAt(5), 0);
    EXPECT_EQ(probe.sampledTables, before.sampledTables);
    EXPECT_EQ(probe.workTables[SAdvProbe::kStresses].GetAt(0).GetSize(), 25);
    EXPECT_EQ(frameOrDefault(probe, 0, 0).plotTitle, "Sampled Velocities (Zoom)");
    SAdvProbe recomputed = probe;
    computeProbeMoments(recomputed);
    EXPECT_TRUE(recomputed == probe);

    // Indexes of a second cut count from the start of what the first one left.
    ASSERT_TRUE(clip(probe, 0.2, 0.4));
    EXPECT_EQ(unitsOf(velocity(probe, 0)), slice(before.workTables[0].GetAt(0), 30, 35));
    EXPECT_EQ(probe.sampleFlags.GetAt(0), 0);
}

TEST(Clipping, MarksOfOtherSamplesAreKnownAfterReopening) {
    for (const bool shortened : {false, true}) {
        SAdvProbe probe = velocityRecord(300);
        probe.sampleFlags.SetAt(40, 0);
        velocity(probe, 1).SetAt(40, 7);
        if (shortened) {
            for (SArray& column : probe.Velocities()) {
                std::copy(column.begin() + 4, column.end(), column.begin());
                column.SetSize(292);
            }
        }
        ASSERT_TRUE(clip(probe, 1.0, 8.0));
        EXPECT_EQ(probe.marksMoved, shortened);
        EXPECT_EQ(reloaded(probe).marksMoved, shortened);
    }
}

TEST(Clipping, LimitsAreTruncatedRefusedOrLimitedToTheRecord) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    struct Row {
        const char* name;
        double start, end;
        bool accepted;
        int samples;
    };
    const Row rows[] = {{"just below zero", -0.01, 1.0, true, 25},
                        {"one sample below zero", -0.04, 1.0, false, 100},
                        {"negative end", 1.0, -0.04, false, 100},
                        {"beyond the end", 3.0, 1e300, true, 25},
                        {"empty", 2.0, 2.0, true, 0},
                        {"inverted", 2.0, 1.0, true, 0},
                        {"all beyond", 1e12, 2e12, true, 0},
                        {"not a number", nan, 1.0, false, 100}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        SAdvProbe probe = velocityRecord(100);
        const SAdvProbe before = probe;
        EXPECT_EQ(clip(probe, row.start, row.end), row.accepted);
        EXPECT_EQ(probe.WorkingSamples(), row.samples);
        if (!row.accepted) {
            EXPECT_TRUE(probe == before);
        }
    }
}

TEST(Clipping, ResetLeavesZoomModeAndRestoresTheRecord) {
    SAdvProbe probe = velocityRecord(100);
    formStresses(probe);
    computeProbeMoments(probe);
    const SAdvProbe before = probe;
    enterZoomMode(probe);
    enterZoomMode(probe);
    EXPECT_EQ(probe.zoomMode, 1U);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(probe.frameAttributes[0].GetAt(i).xMinMode, 0);
        probe.frameAttributes[0].ElementAt(i).xMin = 7.0;
    }
    ASSERT_TRUE(clip(probe, 1.0, 2.0));
    probe.sampleFlags.SetAt(3, 0);
    resetProbe(probe);
    EXPECT_TRUE(probe == before);
}

}  // namespace
}  // namespace vorlan::test
