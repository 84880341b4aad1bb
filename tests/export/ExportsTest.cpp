// Every export of a short record as an approved text, and long columns against plain printing.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>
#include <sstream>

#include "Approved.h"
#include "Records.h"
#include "analysis/CrossSpectralAnalysis.h"
#include "analysis/Histogram.h"
#include "analysis/Quadrants.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/Stationarity.h"
#include "analysis/Stresses.h"
#include "export/ExportKind.h"

namespace vorlan::test {
namespace {

/// A record with the results of every stage.
SAdvProbe analysed(BandMode mode = BandMode::Fixed, int unit = 0) {
    SAdvProbe probe = correlatedProbe(12, -0.4);
    NoProgress silent;
    formStresses(probe);
    analyseStationarity(probe, {mode, 3}, silent);
    analyseDistributions(probe, {4, 90, true}, silent);
    analyseSpectra(probe, {6, 1, unit}, silent);
    analyseCrossSpectra(probe, silent);
    analyseQuadrants(probe, {0.5, 2.0, 0.5, 0.5, 0.1, 1}, silent);
    probe.resultBlock = {2.5, 0.51, 1.425, 12.0, 7.0, 8.0, 9.0};
    return probe;
}

/// The probe is the second one of the second file.
SAdvSet setOf(const SAdvProbe& probe, const std::string& name = "flume.adv") {
    SAdvSet set;
    set.files.Add(SAdvFile());
    SAdvFile file;
    file.fileName = name;
    file.probes.Add(SAdvProbe());
    file.probes.Add(probe);
    set.files.Add(file);
    return set;
}

std::string exported(ExportKind kind, const SAdvProbe& probe, const ExportOptions& options = {}, bool all = false) {
    std::ostringstream stream;
    writeExport(stream, kind, {setOf(probe), 1, 1, options, all});
    return stream.str();
}

constexpr ExportOptions kHeaderTimeComma{true, true, Separator::Comma, 0.2};

std::string kindAndText(const ExportKindInfo& info, const std::string& more, const std::string& text) {
    return std::string("[") + info.name + more + "]\n" + text;
}

TEST(Exports, AreTheApprovedOnes) {
    const SAdvProbe probe = analysed();
    std::string all;
    for (const ExportKindInfo& info : exportKinds()) {
        all += kindAndText(info, " of one probe", exported(info.kind, probe));
        if (info.dialog == ExportDialog::Options) {
            all +=
                kindAndText(info, " with header, time values and commas", exported(info.kind, probe, kHeaderTimeComma));
        } else {
            all += kindAndText(info, " of all probes", exported(info.kind, probe, {}, true));
        }
    }
    EXPECT_EQ(changeOfApproved("exports", all), "");
}

/// What an option or a state of the probe changes, told by the first lines.
TEST(Exports, FollowOptionsAndProbes) {
    const auto firstLines = [](const std::string& text) {
        std::size_t end = 0;
        for (int line = 0; line < 8 && end < text.size(); ++line) {
            end = text.find('\n', end) + 1;
        }
        return text.substr(0, end);
    };
    SAdvProbe other = analysed(BandMode::Cumulative, 1);
    other.useAllSamples = 0;
    other.sampleFlags.SetAt(0, 0);
    other.sampleFlags.SetAt(2, -1);
    other.workTables[SAdvProbe::kStresses].RemoveAll();
    other.statistics[SAdvProbe::kQuadrantRun] = std::nan("");
    other.seriesU.moments.variance = 0.0;
    other.seriesU.spectrum.SetAt(0, std::numeric_limits<std::int32_t>::min());
    other.resultBlock[0] = -1.0;
    std::string all;
    for (const ExportKindInfo& info : exportKinds()) {
        if (info.dialog != ExportDialog::Options) {
            all += kindAndText(info, " of another probe", exported(info.kind, other));
            continue;
        }
        for (const Separator separator : {Separator::Space, Separator::Tab}) {
            std::string text = firstLines(exported(info.kind, other, {false, true, separator, 1.5}));
            std::replace(text.begin(), text.end(), '\t', '>');
            all += kindAndText(info, " of another probe with time values", text);
        }
        std::string text = exported(info.kind, other, {true, false, Separator::Tab, 1.5});
        std::replace(text.begin(), text.end(), '\t', '>');
        all += kindAndText(info, " of another probe with header and tabs", firstLines(text));
        all += kindAndText(info, " of an empty probe", exported(info.kind, SAdvProbe(), kHeaderTimeComma));
    }
    EXPECT_EQ(changeOfApproved("exports-changed", all), "");
    EXPECT_TRUE(other.workTables[SAdvProbe::kStresses].IsEmpty()) << "a probe without stresses keeps none";
}

TEST(Exports, HoldNoControlCharactersOfNames) {
    const SAdvSet set = setOf(analysed(), std::string("a\x1b[7m\n\0\x7f \xC2\x85 \xE9", 13));
    for (const ExportKindInfo& info : exportKinds()) {
        for (const bool all : {false, true}) {
            std::ostringstream stream;
            writeExport(stream, info.kind, {set, 1, 1, {.header = true}, all});
            EXPECT_NE(stream.str().find("a?[7m??? \xC2\x85 \xE9"), std::string::npos) << info.name;
        }
    }
}

TEST(Exports, OfLongColumnsArePrintedNumbers) {
    const SAdvProbe probe = velocityRecord(7000);
    std::string velocities;
    for (int i = 0; i < 7000; ++i) {
        char row[100];
        std::snprintf(row, sizeof row, "%.2f\t%.2f\t%.2f\t%.2f\n", i * 0.04, probe.workTables[0].GetAt(0).GetValue(i),
                      probe.workTables[0].GetAt(1).GetValue(i), probe.workTables[0].GetAt(2).GetValue(i));
        velocities += row;
    }
    EXPECT_TRUE(exported(ExportKind::Velocities, probe, {false, true, Separator::Tab}) == velocities);
}

TEST(Exports, OfColumnsThatDoNotFitTogetherAreRefused) {
    SAdvProbe probe = analysed();
    probe.seriesV.histogram = SArray();
    probe.seriesW.bandKurtosis = SArray();
    probe.stageTables[0].ElementAt(4) = SArray();
    for (const ExportKind kind : {ExportKind::Histograms, ExportKind::Stationarity, ExportKind::Contributions}) {
        for (const bool time : {false, true}) {
            EXPECT_THROW(exported(kind, probe, {false, time, Separator::Space}), InvalidArgument);
        }
    }
}

}  // namespace
}  // namespace vorlan::test
