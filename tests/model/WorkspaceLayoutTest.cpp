#include "model/HandMadeImage.h"

namespace vorlan {
namespace {

using namespace test;

TEST(DocumentBlock, HoldsEveryParameterAtItsPosition) {
    const Workspace workspace = loaded(documentImage(6, 3, 0, 1));
    const WorkspaceSettings& s = workspace.settings;
    const std::pair<std::int32_t, int> integers[] = {{s.activeFile, 1},
                                                     {s.activeProbe, 2},
                                                     {s.activeItem, 3},
                                                     {s.previousFile, 4},
                                                     {s.previousProbe, 5},
                                                     {s.previousItem, 6},
                                                     {s.physicalValue, 9},
                                                     {s.activeView, 10},
                                                     {s.reservedA2, 11},
                                                     {s.reservedA3, 12},
                                                     {s.displaySwitch, 13},
                                                     {s.reservedA5, 14},
                                                     {s.correlationTest, 15},
                                                     {s.snrTest, 16},
                                                     {s.spikeFilter, 17},
                                                     {s.velocityTest, 18},
                                                     {s.correlationStatistic, 25},
                                                     {s.snrStatistic, 26},
                                                     {s.badSampleTreatment, 27},
                                                     {s.filterType, 30},
                                                     {s.filterShape, 31},
                                                     {s.bandCount, 32},
                                                     {s.bandMode, 33},
                                                     {s.normalApproximation, 34},
                                                     {s.gradeCount, 35},
                                                     {s.barWidth, 36},
                                                     {s.lagCount, 37},
                                                     {s.truncationMode, 38},
                                                     {s.unitButton, 39},
                                                     {s.windowButton, 40},
                                                     {s.lagPercent, 41},
                                                     {s.lastTruncationPoint, 42},
                                                     {s.quadrantStress, 50},
                                                     {s.planPlane, 51},
                                                     {s.planPixels, 52},
                                                     {s.meanVelocityMode, 56}};
    for (const auto& [value, position] : integers) {
        EXPECT_EQ(value, 100 + position);
    }
    const std::pair<double, int> doubles[] = {
        {s.averageCorrelation, 19},    {s.averageSnr, 20},        {s.minimumCorrelation, 21}, {s.minimumSnr, 22},
        {s.accelerationThreshold, 23}, {s.velocityThreshold, 24}, {s.filterCutoff, 28},       {s.filterHalfWidth, 29},
        {s.holeIncrement, 45},         {s.holeMaximum, 46},       {s.ejectionThreshold, 47},  {s.sweepThreshold, 48},
        {s.maximumTimeLag, 49},        {s.planSpeed, 53},         {s.planSmaller, 54},        {s.userMeanVelocity, 55}};
    for (const auto& [value, position] : doubles) {
        EXPECT_EQ(value, position + 0.5);
    }
    EXPECT_EQ(s.choiceA, 6);
    EXPECT_EQ(s.choiceB, 3);
}

TEST(DocumentBlock, CodesAreExchangedBothWays) {
    const int stages[] = {0, 1, 2, 3, 4, 7, 6, 5};
    const int windows[] = {0, 2, 1, 3};
    for (int code = 0; code < 8; ++code) {
        const Bytes image = documentImage(code, 7 - code, code % 4, code % 2);
        Workspace workspace = loaded(image);
        EXPECT_EQ(workspace.settings.choiceA, stages[code]);
        EXPECT_EQ(workspace.settings.choiceB, stages[7 - code]);
        EXPECT_EQ(workspace.settings.lastWindowCode, windows[code % 4]);
        EXPECT_EQ(workspace.settings.lastUnitIsRad, code % 2 == 0);
        EXPECT_EQ(stored(workspace), image);
    }
}

TEST(DocumentBlock, CodesOutOfRangeLeaveTheDefaults) {
    for (const std::int32_t wrong : {-1, 8, 1000}) {
        const Workspace workspace = loaded(documentImage(wrong, wrong, wrong, wrong));
        EXPECT_EQ(workspace.settings.choiceA, 0);
        EXPECT_EQ(workspace.settings.choiceB, 0);
        EXPECT_EQ(workspace.settings.lastWindowCode, 0);
        EXPECT_FALSE(workspace.settings.lastUnitIsRad);
        EXPECT_EQ(workspace.settings.meanVelocityMode, 156);
    }
}

TEST(Version, NeedsACharacterOfANumber) {
    for (const char* version : {"Version 1.59", ".", "release 7", "x.y", "0"}) {
        EXPECT_NO_THROW(loaded(documentImage(0, 0, 0, 1, version))) << version;
    }
    for (const char* version : {"", "Version", "Version one-two,three"}) {
        const Bytes image = documentImage(0, 0, 0, 1, version);
        Archive archive = Archive::loading(image);
        Workspace workspace;
        try {
            workspace.Serialize(archive);
            FAIL() << version;
        } catch (const InvalidVersionError& error) {
            EXPECT_STREQ(error.what(), "Invalid Workspace format.");
            EXPECT_EQ(workspace.settings, WorkspaceSettings());
        }
    }
    // Whatever wrote the file, it is saved under the program's own version.
    Workspace workspace = loaded(documentImage(0, 0, 0, 1, "2"));
    EXPECT_EQ(stored(workspace), documentImage(0, 0, 0, 1));
}

TEST(Layout, StoresTheHandMadeFileAgain) {
    Workspace workspace = loaded(fullImage());
    EXPECT_EQ(stored(workspace), fullImage());
    Workspace copy = workspace;
    EXPECT_EQ(stored(copy), fullImage());
}

TEST(Layout, DataFileMembers) {
    const Workspace workspace = loaded(fullImage());
    const SAdvFile& file = workspace.dataFiles.files.GetAt(0);
    EXPECT_EQ(file.fileName, "C:\\data\\run.adv");
    EXPECT_EQ(file.channelCount, 2U);
    EXPECT_EQ(file.headerBlock[299], static_cast<char>(299));
    EXPECT_EQ(file.channels[7].textA[0], static_cast<char>(7 * 31));
    EXPECT_EQ(file.channels[7].textB[0], static_cast<char>(7 * 31 + 254));
    EXPECT_EQ(file.channels[7].textC[25], static_cast<char>(7 * 31 + 297));
    EXPECT_EQ(file.channels[7].flag, 47);
    EXPECT_EQ(file.channels[7].valueC, 72.0F);
    EXPECT_EQ(file.channelWords[7], 907U);
    EXPECT_EQ(file.headerPairs[3], 913.0F);
    EXPECT_EQ(file.headerFloatA, 914.0F);
    EXPECT_EQ(file.headerFloatB, 915.0F);
    EXPECT_EQ(file.headerIntA, 920U);
    EXPECT_EQ(file.headerIntB, 921U);
    EXPECT_EQ(file.headerDoubleA, 922.0);
    EXPECT_EQ(file.headerDoubleB, 923.0);
    EXPECT_EQ(file.headerIntC, 924U);
    EXPECT_EQ(file.headerDoubleC, 925.0);
    EXPECT_EQ(file.headerIntD, 926U);
    EXPECT_EQ(file.comment, "a comment");
    EXPECT_EQ(file.fileTable.GetAt(0).GetAt(1), -930);
    const SBndFile& boundary = workspace.boundaries.GetAt(0);
    EXPECT_EQ(boundary.name, "bank");
    EXPECT_EQ(boundary.path, "/site/bank.bnd");
    EXPECT_EQ(boundary.z.GetAt(1), 6);
    EXPECT_EQ(boundary.y.GetScale(), 0.002);
}

TEST(Layout, ProbeMembers) {
    const Workspace workspace = loaded(fullImage());
    const SAdvProbe& probe = workspace.dataFiles.files.GetAt(0).probes.GetAt(0);
    EXPECT_EQ(probe.probeNumber, 11U);
    EXPECT_EQ(probe.samplingInterval, 0.04);
    EXPECT_EQ(probe.sampleCount, 12U);
    EXPECT_EQ(probe.selectedTab, 13);
    EXPECT_EQ(probe.title, "caption");
    EXPECT_EQ(probe.titleWords[1], 15U);
    EXPECT_EQ(probe.zoomMode, 16U);
    EXPECT_EQ(probe.stressesFormed, 17U);
    EXPECT_EQ(probe.samplingVolumeX, 1.25);
    EXPECT_EQ(probe.samplingVolumeY, 2.25);
    EXPECT_EQ(probe.samplingVolumeZ, 3.25);
    EXPECT_EQ(probe.isProbe, 18U);
    EXPECT_EQ(probe.flagD, 19U);
    EXPECT_EQ(probe.StressMoments(2).kurtosis, 111.0);
    EXPECT_EQ(probe.statistics[SAdvProbe::kQuadrantRun], 118.0);
    EXPECT_EQ(probe.spectralLags, 20U);
    EXPECT_EQ(probe.spectralWindow, 3U);
    EXPECT_EQ(probe.spectralUnit, 1U);
    EXPECT_EQ(probe.bandMode, 21U);
    EXPECT_EQ(probe.quadrantStress, 22U);
    EXPECT_EQ(probe.optionWord, 23U);
    EXPECT_EQ(probe.VelocityMoments(0).mean, 213.0);
    EXPECT_EQ(probe.VelocityMoments(1).variance, 217.0);
    EXPECT_EQ(probe.VelocityMoments(2).kurtosis, 224.0);
    EXPECT_EQ(probe.stageDone[5], 305U);
    EXPECT_EQ(probe.coordinateSystem, 24U);
    EXPECT_EQ(probe.useAllSamples, 25U);
    EXPECT_EQ(probe.resultBlock[6], 406.0);
    EXPECT_EQ(probe.sampledTables[4].GetAt(0).GetAt(0), 504);
    EXPECT_TRUE(probe.sampledTables[5].IsEmpty());
    EXPECT_EQ(probe.sampleFlags.GetAt(0), 1);
    EXPECT_EQ(probe.timeAxis.GetValue(0), 13.0);
    EXPECT_EQ(probe.workTables[9].GetAt(0).GetAt(0), 609);
    EXPECT_EQ(probe.resultTable.GetAt(0).GetAt(0), 610);
    EXPECT_EQ(probe.stageTables[5].GetAt(0).GetAt(0), 625);
    EXPECT_EQ(probe.tabItems.GetAt(0).text, "Qudrants Analysis");
    EXPECT_EQ(probe.tabItems.GetAt(0).parameter, 27U);
    const STimeSeries& series = probe.seriesVW;
    EXPECT_EQ(series.kind, 705U);
    EXPECT_EQ(series.moments, (Moments{710, 711, 712, 713}));
    EXPECT_EQ(series.lags, 714U);
    EXPECT_EQ(series.bands, 715U);
    EXPECT_EQ(series.grades, 716U);
    EXPECT_EQ(series.windowCode, 2U);
    EXPECT_EQ(series.unitSelector, 1U);
    EXPECT_EQ(series.values.GetAt(0), 720);
    EXPECT_EQ(series.correlation.GetAt(0), 721);
    EXPECT_EQ(series.spectrum.GetAt(0), 722);
    EXPECT_EQ(series.structureFunction.GetAt(0), 723);
    EXPECT_EQ(series.histogram.GetAt(0), 724);
    EXPECT_EQ(series.bandKurtosis.GetAt(0), 728);
}

TEST(Layout, FrameMembers) {
    const Workspace workspace = loaded(fullImage());
    ASSERT_EQ(workspace.dataFiles.frameAttributes.GetSize(), 1);
    const FrameAttributesType& frame = workspace.dataFiles.frameAttributes.GetAt(0);
    EXPECT_EQ(frame.xMin, 800.0);
    EXPECT_EQ(frame.yMax, 803.0);
    EXPECT_EQ(frame.xMinMode, 810);
    EXPECT_EQ(frame.scaleType, 814);
    EXPECT_EQ(frame.frameStyle, 815);
    EXPECT_EQ(frame.xTitle, "x title");
    EXPECT_EQ(frame.yTitle, "y title");
    EXPECT_EQ(frame.yStep, 821.0);
    EXPECT_EQ(frame.xStepMode, 830);
    EXPECT_EQ(frame.tickSize, 832);
    EXPECT_EQ(frame.tickOrientation, 835);
    EXPECT_EQ(frame.yDigits, 837);
    EXPECT_EQ(frame.reserved, 839);
    EXPECT_EQ(frame.plotTitle, "frame title");
    EXPECT_EQ(frame.axisTitleFont.bytes()[0], std::byte{60});
    EXPECT_EQ(frame.labelFont.bytes()[59], std::byte{179});
    EXPECT_EQ(frame.gridMode, 840);
    EXPECT_EQ(frame.gridColour, 843);
    EXPECT_EQ(frame.legendPosition, 844);
    EXPECT_EQ(frame.legendTitle, "legend title");
    EXPECT_EQ(frame.legendFont.bytes()[59], std::byte{239});
}

TEST(Layout, OptionsOutOfRangeLeaveTheDefaults) {
    SAdvProbe probe;
    probe.spectralWindow = 4;
    probe.spectralUnit = 2;
    probe.seriesU.windowCode = 9;
    probe.seriesU.unitSelector = 9;
    probe.seriesV.windowCode = 3;
    Archive out = Archive::storing();
    probe.Serialize(out);
    SAdvProbe back;
    Archive in = Archive::loading(out.bytes());
    back.Serialize(in);
    EXPECT_EQ(back.spectralWindow, 0U);
    EXPECT_EQ(back.spectralUnit, 0U);
    EXPECT_EQ(back.seriesU.windowCode, 0U);
    EXPECT_EQ(back.seriesU.unitSelector, 0U);
    EXPECT_EQ(back.seriesV.windowCode, 3U);
}

}  // namespace
}  // namespace vorlan
