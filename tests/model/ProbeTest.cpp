#include <gtest/gtest.h>

#include <cmath>

#include "Stored.h"
#include "model/DefaultFrames.h"
#include "model/FrameSlot.h"
#include "model/ProbeInformation.h"
#include "model/SAdvProbe.h"

namespace vorlan {
namespace {

/// Three samples (1, 2, 3), (3, 0, 3), (8, 1, 0) at resolution 0.5.
SAdvProbe smallProbe() {
    SAdvProbe probe;
    const double rows[3][3] = {{1, 2, 3}, {3, 0, 3}, {8, 1, 0}};
    probe.sampledTables[0].Reshape(3, 0.5);
    for (const auto& row : rows) {
        for (int c = 0; c < 3; ++c) {
            probe.sampledTables[0].ElementAt(c).AddValue(row[c]);
        }
    }
    for (int table = 1; table < 6; ++table) {
        probe.sampledTables[static_cast<std::size_t>(table)].Reshape(1, 1.0);
        probe.sampledTables[static_cast<std::size_t>(table)].ElementAt(0).Add(10 * table);
    }
    return probe;
}

TEST(Probe, ResetBringsTheSampledRecordBack) {
    SAdvProbe probe = smallProbe();
    probe.sampleFlags.Add(0);
    probe.scalarResults[0] = 4.0;
    probe.title = "kept";
    probe.useAllSamples = 0;
    probe.Reset();
    EXPECT_EQ(probe.workTables[0], probe.sampledTables[0]);
    EXPECT_EQ(probe.workTables[1].GetAt(0).GetAt(0), 10);
    EXPECT_EQ(probe.workTables[2].GetAt(0).GetAt(0), 20);
    EXPECT_EQ(probe.workTables[3].GetAt(0).GetAt(0), 40);
    EXPECT_EQ(probe.workTables[4].GetAt(0).GetAt(0), 50);
    EXPECT_TRUE(probe.workTables[5].IsEmpty());
    EXPECT_EQ(probe.scalarResults[0], 0.0);
    ASSERT_EQ(probe.sampleFlags.GetSize(), 3);
    for (const std::int32_t mark : probe.sampleFlags) {
        EXPECT_EQ(mark, 1);
    }
    EXPECT_EQ(probe.title, "kept");
    EXPECT_FALSE(probe.UsesAllSamples());

    // Marks beyond the record stay.
    probe.sampleFlags.SetAt(4, -3);
    probe.Reset();
    EXPECT_EQ(probe.sampleFlags.GetAt(4), -3);
}

TEST(Probe, PressureIsNotStored) {
    SAdvProbe probe = smallProbe();
    probe.samplingInterval = 0.25;
    SAdvProbe back = test::reloaded(probe);
    EXPECT_TRUE(back.sampledTables[5].IsEmpty());
    EXPECT_EQ(back.sampledTables[4], probe.sampledTables[4]);
    for (int kind = 0; kind < 6; ++kind) {
        EXPECT_EQ(back.Series(kind).samplingInterval, 0.25);
        EXPECT_EQ(back.Series(kind).kind, static_cast<std::uint32_t>(kind));
    }
    back.Reset();
    EXPECT_TRUE(back.workTables[4].IsEmpty());
    EXPECT_FALSE(back.workTables[3].IsEmpty());
}

TEST(Probe, SamplesCountByTheirMark) {
    SAdvProbe probe = smallProbe();
    probe.Reset();
    probe.sampleFlags.SetAt(0, 0);
    probe.sampleFlags.SetAt(1, 2);
    EXPECT_TRUE(probe.Counts(0));
    EXPECT_EQ(meanVelocities(probe), (std::array<double, 3>{4.0, 1.0, 2.0}));
    probe.useAllSamples = 0;
    EXPECT_FALSE(probe.Counts(0));
    EXPECT_TRUE(probe.Counts(1));
    EXPECT_FALSE(probe.Counts(3));
    EXPECT_EQ(meanVelocities(probe), (std::array<double, 3>{5.5, 0.5, 1.5}));
}

TEST(Frames, GiveScalesWhereThereIsAChoice) {
    const FrameSlot correlations{false, 3, 0};
    const FrameSlot spectra{false, 3, 1};
    const FrameSlot structures{false, 3, 2};
    const FrameSlot coherence{false, 6, 2};
    const auto given = [](const FrameSlot& from, ScaleType scale, const FrameSlot& to) {
        FrameAttributesType other;
        other.scaleType = static_cast<std::int32_t>(scale);
        other.tickSize = 9;
        FrameAttributesType frame = defaultFrame(to.group, to.record);
        takeStyle(to, frame, from, other);
        EXPECT_EQ(frame.tickSize, 9);
        return static_cast<ScaleType>(frame.scaleType);
    };
    EXPECT_EQ(given(correlations, ScaleType::Linear, spectra), ScaleType::Logarithmic);
    EXPECT_EQ(given(spectra, ScaleType::Linear, structures), ScaleType::Linear);
    EXPECT_EQ(given(spectra, ScaleType::Logarithmic, correlations), ScaleType::Linear);
    EXPECT_EQ(given(spectra, ScaleType::Logarithmic, coherence), ScaleType::Linear);
    EXPECT_EQ(given(spectra, ScaleType::LogXLinearY, coherence), ScaleType::LogXLinearY);
}

}  // namespace
}  // namespace vorlan
