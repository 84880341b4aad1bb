#include <sstream>

#include "Approved.h"
#include "Stored.h"
#include "model/WorkspaceImage.h"

namespace vorlan::test {
namespace {

void show(std::ostream& out, const SArray& column) {
    out << column.GetScale() << "*" << (column.IsEmpty() ? 0 : column.GetAt(0));
}
void show(std::ostream& out, const SMultiArray& table) {
    table.IsEmpty() ? void(out << "none") : show(out, table.GetAt(0));
}
void show(std::ostream& out, const Moments& m) {
    out << m.mean << "/" << m.variance << "/" << m.skewness << "/" << m.kurtosis;
}
void show(std::ostream& out, std::byte byte) {
    out << std::to_integer<int>(byte);
}
void show(std::ostream& out, char c) {
    out << static_cast<int>(static_cast<unsigned char>(c));
}
void show(std::ostream& out, const StoredFlag& flag) {
    out << flag.word();
}
template <class Value>
void show(std::ostream& out, const Value& value) {
    if constexpr (std::is_enum_v<Value>) {
        out << static_cast<std::int32_t>(value);
    } else {
        out << value;
    }
}

template <class... Values>
std::string line(const char* names, const Values&... values) {
    std::ostringstream out;
    out << names << "\n ";
    ((out << " ", show(out, values)), ...);
    out << "\n";
    return out.str();
}
/// The expressions as they are written, and their values.
#define SHOWN(...) line(#__VA_ARGS__, __VA_ARGS__)

TEST(Layout, EveryMemberHasItsPlace) {
    const Workspace workspace = loaded(numberedImage());
    const WorkspaceSettings& s = workspace.settings;
    const EditingSettings& e = s.editing;
    const ScoreTest& c = e.correlation;
    const ScoreTest& n = e.signalToNoise;
    const HistogramSettings& h = s.histograms;
    const SpectralSettings& d = s.spectral;
    const QuadrantSettings& q = s.quadrants;
    const SAdvFile& file = workspace.dataFiles.files.GetAt(0);
    const SAdvProbe& p = file.probes.GetAt(0);
    const STimeSeries& v = p.seriesVW;
    const FrameAttributesType& f = workspace.dataFiles.frameAttributes.GetAt(0);
    const SBndFile& b = workspace.boundaries.GetAt(0);
    const std::string all =
        SHOWN(s.activeFile, s.activeProbe, s.activeItem, s.previousFile, s.previousProbe, s.previousItem) +
        SHOWN(s.choiceA, s.choiceB, s.physicalValue, s.activeView, s.reservedA2, s.reservedA3, s.displaySwitch) +
        SHOWN(s.reservedA5, c.on, n.on, e.spikeFilter, e.velocityTest, c.averageThreshold) +
        SHOWN(n.averageThreshold, c.minimumThreshold, n.minimumThreshold, e.accelerationThreshold,
              e.velocityThreshold) +
        SHOWN(c.statistic, n.statistic, e.treatment, s.filter.cutoff, s.filter.halfWidth) +
        SHOWN(s.filter.type, s.filter.shape, s.stationarity.bands, s.stationarity.mode, h.normalApproximation, h.grades,
              h.barWidth) +
        SHOWN(d.lags, d.truncationMode, d.unitButton, d.windowButton, d.percent, s.lastTruncationPoint) +
        SHOWN(s.lastWindowCode, s.lastUnitIsRad, q.increment, q.maximum, q.ejectionThreshold) +
        SHOWN(q.sweepThreshold, q.maximumLag, q.stressType, s.vectors.plane, s.vectors.pixels, s.vectors.speed) +
        SHOWN(s.vectors.smaller, s.meanVelocity.value, s.meanVelocity.mode) +
        SHOWN(file.fileName, file.channelCount, file.headerBlock[0], file.headerBlock[299]) +
        SHOWN(file.channels[7].textA[0], file.channels[7].textB[0], file.channels[7].textC[25]) +
        SHOWN(file.channels[7].flag, file.channels[7].valueC, file.channelWords[7], file.headerPairs[3]) +
        SHOWN(file.headerFloatA, file.headerFloatB, file.headerIntA, file.headerIntB, file.headerDoubleA) +
        SHOWN(file.headerDoubleB, file.headerIntC, file.headerDoubleC, file.headerIntD, file.comment, file.fileTable) +
        SHOWN(p.probeNumber, p.samplingInterval, p.sampleCount, p.selectedTab, p.title, p.titleWords[1], p.zoomMode) +
        SHOWN(p.stressesFormed, p.samplingVolumeX, p.samplingVolumeY, p.samplingVolumeZ, p.isProbe, p.flagD) +
        SHOWN(p.StressMoments(0), p.StressMoments(2), p.statistics[SAdvProbe::kQuadrantRun], p.spectralLags) +
        SHOWN(p.spectralWindow, p.spectralUnit, p.bandMode, p.quadrantStress, p.optionWord, p.scalarResults[0]) +
        SHOWN(p.VelocityMoments(0), p.VelocityMoments(2), p.stageDone[0], p.stageDone[5], p.coordinateSystem) +
        SHOWN(p.useAllSamples, p.resultBlock[0], p.resultBlock[6], p.sampledTables[0], p.sampledTables[4]) +
        SHOWN(p.sampledTables[5], p.sampleFlags.GetAt(1), p.timeAxis, p.workTables[0], p.workTables[9]) +
        SHOWN(p.resultTable, p.stageTables[0], p.stageTables[5], p.tabItems.GetAt(0).mask, p.tabItems.GetAt(0).text) +
        SHOWN(p.tabItems.GetAt(0).parameter, p.seriesU.kind, p.seriesU.moments, v.kind, v.moments, v.lags, v.bands) +
        SHOWN(v.grades, v.windowCode, v.unitSelector, v.values, v.correlation, v.spectrum, v.structureFunction) +
        SHOWN(v.histogram, v.bandMeans, v.bandVariances, v.bandSkewness, v.bandKurtosis, v.samplingInterval) +
        SHOWN(f.xMin, f.xMax, f.yMin, f.yMax, f.xMinMode, f.xMaxMode, f.yMinMode, f.yMaxMode, f.scaleType) +
        SHOWN(f.frameStyle, f.xTitle, f.yTitle, f.xStep, f.yStep, f.xStepMode, f.yStepMode, f.tickSize, f.markSize) +
        SHOWN(f.ticksPerMark, f.tickOrientation, f.xDigits, f.yDigits, f.labelOffset, f.reserved, f.plotTitle) +
        SHOWN(f.plotTitleFont.bytes()[0], f.axisTitleFont.bytes()[0], f.labelFont.bytes()[59], f.gridMode) +
        SHOWN(f.gridLineStyle, f.gridPenWidth, f.gridColour, f.legendPosition, f.legendTitle,
              f.legendFont.bytes()[59]) +
        SHOWN(b.name, b.path, b.x, b.y, b.z);
    EXPECT_EQ(changeOfApproved("workspace-members", all), "");
    Workspace copy = workspace;
    EXPECT_EQ(stored(copy), numberedImage());
}

Bytes imageOfCodes(std::int32_t a, std::int32_t b, std::int32_t window, std::int32_t unit) {
    WorkspaceImage image;
    image.codes = {a, b, window, unit};
    image.workspace(0);
    return image.bytes;
}

TEST(DocumentBlock, CodesAreExchangedBothWays) {
    const int stages[] = {0, 1, 2, 3, 4, 7, 6, 5};
    const int windows[] = {0, 2, 1, 3};
    for (int code = 0; code < 8; ++code) {
        const Bytes image = imageOfCodes(code, 7 - code, code % 4, code % 2);
        Workspace workspace = loaded(image);
        EXPECT_EQ(workspace.settings.choiceA, stages[code]);
        EXPECT_EQ(workspace.settings.choiceB, stages[7 - code]);
        EXPECT_EQ(workspace.settings.lastWindowCode, windows[code % 4]);
        EXPECT_EQ(workspace.settings.lastUnitIsRad, code % 2 == 0);
        EXPECT_EQ(stored(workspace), image);
    }
    for (const std::int32_t wrong : {-1, 8, 1000}) {
        const Workspace workspace = loaded(imageOfCodes(wrong, wrong, wrong, wrong));
        EXPECT_EQ(workspace.settings.choiceA, 0);
        EXPECT_EQ(workspace.settings.choiceB, 0);
        EXPECT_EQ(workspace.settings.lastWindowCode, 0);
        EXPECT_FALSE(workspace.settings.lastUnitIsRad);
    }
}

Bytes imageOfVersion(const std::string& version) {
    WorkspaceImage image;
    image.version = version;
    image.workspace(0);
    return image.bytes;
}

TEST(Version, NeedsACharacterOfANumber) {
    for (const char* version : {"Version 1.59", ".", "release 7", "x.y", "0", "\x01\x7F\n3"}) {
        // Whatever wrote the file, it is saved under the program's own version.
        Workspace workspace = loaded(imageOfVersion(version));
        EXPECT_EQ(stored(workspace), imageOfVersion("Version 1.59")) << version;
    }
    for (const char* version : {"", "Version", "Version one-two,three"}) {
        const Bytes image = imageOfVersion(version);
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
}

TEST(Layout, OptionsOutOfRangeLeaveTheDefaults) {
    SAdvProbe probe;
    probe.spectralWindow = 4;
    probe.spectralUnit = 2;
    probe.seriesU.windowCode = 9;
    probe.seriesU.unitSelector = 9;
    probe.seriesV.windowCode = 3;
    const SAdvProbe back = reloaded(probe);
    EXPECT_EQ(back.spectralWindow, 0U);
    EXPECT_EQ(back.spectralUnit, 0U);
    EXPECT_EQ(back.seriesU.windowCode, 0U);
    EXPECT_EQ(back.seriesU.unitSelector, 0U);
    EXPECT_EQ(back.seriesV.windowCode, 3U);
}

}  // namespace
}  // namespace vorlan::test
