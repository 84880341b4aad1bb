// What every pane of every stage shows of a short record, as approved texts.
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <map>
#include <sstream>

#include "Approved.h"
#include "analysis/AnalysedSeries.h"
#include "analysis/Clipping.h"
#include "analysis/CrossSpectralAnalysis.h"
#include "analysis/Histogram.h"
#include "analysis/Quadrants.h"
#include "analysis/Simulation.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/Stationarity.h"
#include "model/StageTable.h"
#include "stages/PaneDescription.h"
#include "stages/PaneText.h"
#include "stages/TurbulenceReadOut.h"

namespace vorlan::test {
namespace {

constexpr std::array<PhysicalValue, 2> kValues = {PhysicalValue::Velocities, PhysicalValue::Stresses};

/// A workspace with one simulated data file of 50 samples every 0.04 s.
Workspace simulated() {
    SimulationParameters parameters;
    parameters.length = 2.0;
    parameters.compass = true;
    parameters.heading = 20.0;
    parameters.whiteNoise = true;
    parameters.position = {1.5, 0.25, 0.04};
    for (auto& component : parameters.components) {
        component.harmonics[0] = {5.0, 0.7, 30.0};
    }
    Workspace workspace;
    workspace.dataFiles.files.Add(simulate(parameters, 7));
    return workspace;
}

SAdvProbe& probeOf(Workspace& workspace) {
    return workspace.dataFiles.files.ElementAt(0).probes.ElementAt(0);
}

void analyse(SAdvProbe& probe, BandMode mode = BandMode::Fixed, int unit = 0, int stress = 1) {
    NoProgress progress;
    formAnalysedSeries(probe);
    analyseStationarity(probe, {mode, 5}, progress);
    analyseDistributions(probe, {4, 90, true}, progress);
    analyseSpectra(probe, {9, 1, unit}, progress);
    analyseCrossSpectra(probe, progress);
    analyseQuadrants(probe, {0.5, 3.0, 0.5, 0.6, 2.0, stress}, progress);
    probe.resultBlock = {0.5, 1.0, 2.0, 3.0, 10.0, 20.0, 30.0};
}

Workspace analysed() {
    Workspace workspace = simulated();
    analyse(probeOf(workspace));
    return workspace;
}

using PaneTexts = std::map<std::string, std::string>;

/// All panes by stage, pane and what is shown; what stresses or tables do not change is told once.
PaneTexts paneTexts(const Workspace& workspace) {
    PaneTexts texts;
    for (int stage = 0; stage < kStageCount; ++stage) {
        for (int pane = 0; pane < kPaneCount; ++pane) {
            const std::string name = formatted("%d %s, %s", stage, stageRow(static_cast<Stage>(stage)).text,
                                               kPaneTexts.at(static_cast<std::size_t>(pane)));
            for (const PhysicalValue value : kValues) {
                for (const bool showTable : {false, true}) {
                    const std::string text = paneText(describePane(
                        {workspace, 0, 0, static_cast<Stage>(stage), static_cast<Pane>(pane), value, showTable}));
                    const std::string full =
                        name + (value == PhysicalValue::Stresses ? ", stresses" : "") + (showTable ? ", table" : "");
                    const bool told = std::any_of(texts.begin(), texts.end(), [&](const auto& shown) {
                        return shown.first.rfind(name, 0) == 0 && shown.second == text;
                    });
                    if (!told) {
                        texts[full] = text;
                    }
                }
            }
        }
    }
    return texts;
}

std::string written(const PaneTexts& texts) {
    std::string all;
    for (const auto& [name, text] : texts) {
        all += name + ": " + text;
    }
    return all;
}

/// The lines of a text that are not those of the one before.
std::string changedLines(const std::string& before, const std::string& now) {
    std::istringstream old(before);
    std::istringstream stream(now);
    std::string lines;
    std::string was;
    for (std::string line; std::getline(stream, line);) {
        if (!std::getline(old, was) || was != line) {
            lines += (lines.empty() ? "\n" : "") + line + "\n";
        }
    }
    return lines.empty() && before.size() > now.size() ? "less\n" : lines;
}

TEST(Panes, ShowAnAnalysedRecord) {
    EXPECT_EQ(changeOfApproved("panes", written(paneTexts(analysed()))), "");
}

// A workspace is changed, and the panes that show it are told.
TEST(Panes, ShowWhatWasChanged) {
    struct Change {
        const char* name;
        std::function<void(Workspace&, SAdvProbe&)> make;
    };
    const Change changes[] = {
        {"nothing analysed", [](Workspace& w, SAdvProbe&) { w = simulated(); }},
        {"other runs",
         [](Workspace& w, SAdvProbe& p) {
             w.settings.quadrants.increment = 0.1;
             analyse(p, BandMode::Cumulative, 1, 2);
         }},
        {"a stress that does not exist, no normal curve, narrow bars",
         [](Workspace& w, SAdvProbe& p) {
             p.quadrantStress = 77;
             w.settings.histograms.normalApproximation = false;
             w.settings.histograms.barWidth = 30;
         }},
        {"samples rejected",
         [](Workspace&, SAdvProbe& p) {
             p.sampleFlags.SetAt(5, 0);
             p.sampleFlags.SetAt(7, -1);
         }},
        {"samples removed",
         [](Workspace&, SAdvProbe& p) {
             p.useAllSamples = 0;
             p.sampleFlags.SetAt(5, 0);
             p.sampleFlags.SetSize(48);  // what lies behind the marks does not count either
         }},
        {"all samples removed",
         [](Workspace&, SAdvProbe& p) {
             p.useAllSamples = 0;
             std::fill(p.sampleFlags.begin(), p.sampleFlags.end(), 0);
         }},
        {"a record shorter than its marks and scores",
         [](Workspace&, SAdvProbe& p) {
             p.sampleFlags.SetAt(5, 0);
             for (SArray& column : p.workTables[SAdvProbe::kVelocities]) {
                 column.SetSize(40);
             }
         }},
        {"such a record clipped",
         [](Workspace&, SAdvProbe& p) {
             p.sampleFlags.SetAt(15, 0);
             for (SArray& column : p.workTables[SAdvProbe::kVelocities]) {
                 column.SetSize(40);
             }
             NoProgress progress;
             clip(p, 0.4, 0.8, progress);
         }},
        {"an empty record",
         [](Workspace&, SAdvProbe& p) {
             for (SMultiArray& table : p.workTables) {
                 for (SArray& column : table) {
                     column.RemoveAll();
                 }
             }
             p.sampleFlags.RemoveAll();
         }},
        {"one sample, none of which counts",
         [](Workspace&, SAdvProbe& p) {
             for (SArray& column : p.workTables[SAdvProbe::kVelocities]) {
                 column.SetSize(1);
             }
             p.useAllSamples = 0;
             p.sampleFlags.RemoveAll();
         }},
        {"pressure, no compass",
         [](Workspace&, SAdvProbe& p) {
             p.workTables[SAdvProbe::kWorkPressure].Reshape(1, 0.01);
             p.workTables[SAdvProbe::kWorkPressure].ElementAt(0).AddValue(101.3);
             p.workTables[SAdvProbe::kWorkCompass].RemoveAll();
         }},
        {"values that could not be stored",
         [](Workspace&, SAdvProbe& p) {
             p.seriesU.spectrum.SetAt(2, std::numeric_limits<std::int32_t>::min());
             p.workTables[SAdvProbe::kStresses].ElementAt(1).RemoveAll();
         }},
        {"a caption that goes on where the title ends",
         [](Workspace&, SAdvProbe& p) {
             p.frameAttributes[0].ElementAt(0).plotTitle = "Cleaned-up time series";
             p.title = "Cleaned-up time series (12 spikes removed)";
         }},
        {"the user's axes",
         [](Workspace&, SAdvProbe& p) {
             for (SFrameAtrArray& frames : p.frameAttributes) {
                 for (int i = 0; i < frames.GetSize(); ++i) {
                     FrameAttributesType& frame = frames.ElementAt(i);
                     frame.xTitle = "f";
                     frame.xMinMode = frame.yMinMode = frame.yMaxMode = 1;
                     frame.xMin = frame.yMin = -2.0;
                     frame.yMax = 180.0;
                 }
             }
         }},
        {"a full turn with a step of its own",
         [](Workspace&, SAdvProbe& p) { p.frameAttributes[6].ElementAt(3).yStepMode = 1; }},
        {"three quarters of a turn", [](Workspace&, SAdvProbe& p) { p.frameAttributes[6].ElementAt(3).yMax = 90.0; }},
        {"no frames", [](Workspace&, SAdvProbe& p) { p.frameAttributes = {}; }},
        {"the plan of X and Z, boundaries, a probe without a record",
         [](Workspace& w, SAdvProbe&) {
             w.settings.vectors.plane = 1;
             w.settings.vectors.pixels = 60;
             w.settings.vectors.speed = 20.0;
             for (const double x : {3.0, 2.0}) {
                 SBndFile boundary;
                 boundary.SetNode(0, 0.0, 1.0, 0.0);
                 boundary.SetNode(1, x, 1.0, 0.5);
                 w.boundaries.Add(boundary);
             }
             SAdvFile second = w.dataFiles.files.GetAt(0);
             second.fileName = "other";
             second.probes.Add(SAdvProbe{});
             w.dataFiles.files.Add(second);
         }},
        {"the plan of Y and Z, no speed",
         [](Workspace& w, SAdvProbe&) {
             w.settings.vectors.plane = 2;
             w.settings.vectors.speed = 0.0;
         }},
        {"a plan that does not exist", [](Workspace& w, SAdvProbe&) { w.settings.vectors.plane = -1; }},
        {"the first plan", [](Workspace& w, SAdvProbe&) { w.settings.vectors.plane = 0; }},
    };
    const PaneTexts usual = paneTexts(analysed());
    std::string all;
    for (const Change& change : changes) {
        Workspace workspace = analysed();
        change.make(workspace, probeOf(workspace));
        PaneTexts texts = paneTexts(workspace);
        for (auto& [name, text] : texts) {
            if (const auto before = usual.find(name); before != usual.end()) {
                text = changedLines(before->second, text);
            }
        }
        std::erase_if(texts, [](const auto& pane) { return pane.second.empty(); });
        all += std::string("With ") + change.name + "\n" + written(texts) + "\n";
    }
    EXPECT_EQ(changeOfApproved("panes-changed", all), "");
}

TEST(Panes, ShowTextsOfOneBytePerCharacterAsUtf8) {
    Workspace workspace = analysed();
    FrameAttributesType& frame = workspace.dataFiles.frameAttributes.GrowTo(0);
    frame.plotTitle = "Fl\xFCgel";
    frame.xTitle = "\xB0";
    frame.yTitle = "\xE9";
    frame.legendTitle = "\xD6l";
    workspace.dataFiles.files.ElementAt(0).fileName = "M\xFCll";
    const auto shown = [&](Pane pane) { return describePane({workspace, 0, 0, Stage::MeanVelocityVectors, pane}); };
    const FrameAttributesType titles = std::get<Diagram>(shown(Pane::LeftTop)).frame;
    EXPECT_EQ(titles.plotTitle + titles.xTitle + titles.yTitle + titles.legendTitle,
              "Fl\xC3\xBCgel\xC2\xB0\xC3\xA9\xC3\x96l");
    EXPECT_EQ(std::get<TableContent>(shown(Pane::RightBottom)).rows[0].title, "M\xC3\xBCll, probe 1");
}

TEST(Panes, NeedWhatTheyShow) {
    const Workspace workspace = analysed();
    const Workspace before = workspace;
    for (const auto& [file, probe] : {std::pair{-1, 0}, {0, -1}, {0, 1}, {1, 0}}) {
        EXPECT_EQ(paneText(describePane({workspace, file, probe})), "nothing\n");
        EXPECT_NE(paneText(describePane({workspace, file, probe, Stage::MeanVelocityVectors})), "nothing\n");
        EXPECT_EQ(paneText(describePane({workspace, file, probe, Stage::MeanVelocityVectors, Pane::RightTop})),
                  "nothing\n");
    }
    EXPECT_EQ(paneText(describePane({Workspace(), -1, -1, Stage::MeanVelocityVectors})), "nothing\n");
    EXPECT_EQ(paneText(describePane({workspace, 0, 0, Stage::Stationarity, static_cast<Pane>(kPaneCount)})),
              "\"Encountered an improper argument.\"\n");
    EXPECT_EQ(workspace.dataFiles, before.dataFiles);
}

TEST(Panes, LeaveNoExceptionToThePainterWhateverIsDamaged) {
    Workspace workspace = analysed();
    SAdvProbe& probe = probeOf(workspace);
    const SAdvProbe whole = probe;
    const auto damage = [](SMultiArray& table, int column) {
        if (column < table.GetSize()) {
            table.ElementAt(column) = SArray();
        }
    };
    for (const int column : {0, 1, 2}) {
        for (SMultiArray& table : probe.workTables) {
            damage(table, column);
        }
        EXPECT_NO_THROW(paneTexts(workspace));
        for (SMultiArray& table : probe.stageTables) {
            damage(table, column);
        }
        probe.Series(column) = STimeSeries();
        EXPECT_NO_THROW(paneTexts(workspace));
        probe = whole;
    }
}

PlotSeries curveOf(std::vector<double> x, std::vector<double> y) {
    PlotSeries series;
    series.x.values = std::move(x);
    series.y = std::move(y);
    return series;
}

/// What the status bar says at a spot of every pane, where that is something, and of what was read off.
TEST(Panes, AreReadOut) {
    CScreenUtils g;  // 200 x 100 pixels from (50, 150): 0.1 s and 0.5 units a pixel
    g.originX = 50;
    g.originY = 150;
    g.width = 200;
    g.height = 100;
    g.xMax = 20.0;
    g.yMin = -10.0;
    g.yMax = 40.0;
    g.xScale = 0.1;
    g.yScale = 0.5;
    std::string all;
    for (int stage = 0; stage < kStageCount; ++stage) {
        for (int pane = 0; pane < kPaneCount; ++pane) {
            for (const PhysicalValue value : kValues) {
                const auto s = static_cast<Stage>(stage);
                const auto p = static_cast<Pane>(pane);
                all += formatted("%s, %s%s\n", stageRow(static_cast<Stage>(stage)).text,
                                 kPaneTexts.at(static_cast<std::size_t>(pane)),
                                 value == PhysicalValue::Stresses ? ", stresses" : "");
                const std::string lines[] = {readOut(s, p, value, g, 70, 110), readOut(s, p, value, g, 70, 160),
                                             dragReadOut(s, p, 1.0, 10.0)};
                for (const std::string& line : lines) {
                    all += line.empty() ? "" : "  " + line + "\n";
                }
                for (const bool showTable : {false, true}) {
                    const auto slot = frameSlotOf(s, p, value, showTable);
                    all += !slot ? "  no frame\n"
                                 : formatted("  frame %s %d %d\n", slot->inSet ? "of the set" : "of the probe",
                                             slot->group, slot->record);
                }
                for (const int px : {49, 251}) {
                    EXPECT_EQ(readOut(s, p, value, g, px, 110), "");
                }
            }
        }
    }
    const Workspace workspace = analysed();
    const SAdvProbe& probe = workspace.dataFiles.files.GetAt(0).probes.GetAt(0);
    Diagram straight;
    straight.plot.series = {curveOf({1.0, 2.0, 4.0}, {8.0, 2.0, 0.5})};
    for (const auto& [rate, scales] : {std::pair{DissipationSource::Spectrum, ScalesSource::Spectrum},
                                       {DissipationSource::Structure, ScalesSource::Correlation}}) {
        all += acceptedRateText(probe) + "\n" + acceptedScalesText(scales, probe) + "\n" +
               slopeDistancesText(straight, 1.0, 4.0, rate) + "\n";
    }
    EXPECT_EQ(changeOfApproved("readouts", all), "");
}

TEST(FrameSlot, PlainRecordOfTheSetStandsForTheDefault) {
    SAdvSet set;
    EXPECT_EQ(frameInSlot(set, nullptr, {true, 0, 0}).plotTitle, "Mean Velocity Vectors");
    EXPECT_EQ(frameInSlot(set, nullptr, {true, 0, 1}).plotTitle, "Minimum, Maximum Velocity Vectors");
    set.frameAttributes.ElementAt(0).xDigits = 3;
    EXPECT_EQ(frameInSlot(set, nullptr, {true, 0, 0}).plotTitle, "");
}

}  // namespace
}  // namespace vorlan::test
