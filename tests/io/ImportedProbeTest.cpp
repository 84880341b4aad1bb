#include "analysis/ImportedProbe.h"

#include <gtest/gtest.h>

#include <cmath>

#include "io/DelimitedTable.h"

namespace vorlan {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

std::vector<double> bridgedOver(std::vector<double> values) {
    bridgeGaps(values);
    return values;
}

TEST(Gaps, LieOnTheStraightLine) {
    EXPECT_EQ(bridgedOver({1, kNone, kNone, 7}), (std::vector<double>{1, 3, 5, 7}));
    EXPECT_EQ(bridgedOver({kNone, kNone, 2, kNone, 0, kNone}), (std::vector<double>{2, 2, 2, 1, 0, 0}));
    EXPECT_EQ(bridgedOver({5}), (std::vector<double>{5}));
    EXPECT_TRUE(bridgedOver({}).empty());
    std::vector<double> nothing{kNone, kNone};
    EXPECT_THROW(bridgeGaps(nothing), InvalidArgument);
}

ImportSettings everyFifth() {
    ImportSettings settings;
    settings.samplingInterval = 0.2;
    return settings;
}

RecordColumns recordOf(const std::string& text) {
    TableOptions options;
    options.missing = TableOptions::Missing::Mark;
    return parseDelimitedTable(text, "site.csv", options).record;
}

std::vector<double> columnOf(const SMultiArray& table, int column) {
    return table.GetAt(column).Values();
}

TEST(ImportedProbes, HoldTheRecordInBothTables) {
    ImportSettings settings = everyFifth();
    settings.resolution = 0.01;
    settings.position = {1.5, -0.25, 2.0};
    settings.probeNumber = 3;
    const SAdvProbe probe = importedProbe(
        recordOf("u,v,w,cor2,snr1,heading,pitch,roll,pressure\n1.239,2,3,80,20.5,10,1,2,5\n4,,6,85,21,12,1,2,6\n"
                 "7,8,9,90,22,14,1,2,7\n"),
        settings);
    EXPECT_EQ(probe.probeNumber, 3U);
    EXPECT_EQ(probe.sampleCount, 3U);
    EXPECT_EQ(probe.samplingInterval, 0.2);
    EXPECT_EQ(probe.samplingVolumeX, 1500.0);
    EXPECT_EQ(probe.samplingVolumeY, -250.0);
    const SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    EXPECT_EQ(velocities, probe.sampledTables[SAdvProbe::kVelocities]);
    EXPECT_EQ(velocities.GetAt(0).GetScale(), 0.01);
    EXPECT_EQ(velocities.GetAt(0).GetAt(0), 123);
    EXPECT_EQ(velocities.GetAt(1).GetAt(1), 500);
    EXPECT_EQ(columnOf(probe.workTables[SAdvProbe::kCorrelation], 0), (std::vector<double>{100, 100, 100}));
    EXPECT_EQ(columnOf(probe.workTables[SAdvProbe::kCorrelation], 1), (std::vector<double>{80, 85, 90}));
    EXPECT_EQ(columnOf(probe.workTables[SAdvProbe::kSignalToNoise], 0), (std::vector<double>{20.5, 21, 22}));
    EXPECT_EQ(columnOf(probe.workTables[SAdvProbe::kSignalToNoise], 2), (std::vector<double>{30, 30, 30}));
    EXPECT_EQ(columnOf(probe.workTables[SAdvProbe::kWorkCompass], 0), (std::vector<double>{10, 12, 14}));
    EXPECT_EQ(columnOf(probe.workTables[SAdvProbe::kWorkPressure], 0), (std::vector<double>{5, 6, 7}));
    ASSERT_EQ(probe.sampleFlags.GetSize(), 3);
    EXPECT_EQ(probe.sampleFlags.GetAt(0), 1);
    EXPECT_EQ(probe.sampleFlags.GetAt(1), 0);
    EXPECT_EQ(probe.sampleFlags.GetAt(2), 1);
    EXPECT_FALSE(probe.IsChanged());
    EXPECT_TRUE(probe.UsesAllSamples());
}

TEST(ImportedProbes, MissingRowsHaveNoScore) {
    const SAdvProbe probe =
        importedProbe(recordOf("u,v,w,cor1,pressure\n1,1,1,90,5\n,,,,\n3,3,3,90,7\n"), everyFifth());
    EXPECT_EQ(columnOf(probe.workTables[SAdvProbe::kVelocities], 2), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(columnOf(probe.workTables[SAdvProbe::kCorrelation], 0), (std::vector<double>{90, 0, 90}));
    EXPECT_EQ(columnOf(probe.workTables[SAdvProbe::kWorkPressure], 0), (std::vector<double>{5, 6, 7}));
}

}  // namespace
}  // namespace vorlan
