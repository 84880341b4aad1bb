// A document through a session, as an approved text: what is selected after every command, and what the listener heard.
#include <gtest/gtest.h>

#include "Approved.h"
#include "RecordingPort.h"
#include "SampleDocument.h"
#include "app/CommandState.h"
#include "model/DefaultFrames.h"
#include "model/StageTable.h"
#include "model/Text.h"

namespace vorlan {
namespace {

class Session {
  public:
    Session() {
        document_.SetListener([this](Change change) { heard_ += change == Change::Content ? 'c' : 'v'; });
    }

    RecordingPort port;  ///< as new after every command

    /// Gives a command and writes its name, what came of it and which commands may be given now.
    template <class Command>
    void after(const std::string& name, const Command& command) {
        const SAdvProbe before = probe();
        command(document_);
        const WorkspaceSettings& s = document_.Settings();
        text_ += name + "\n  " +
                 formatted("file %d probe %d tab %d, before %d %d %d, ", s.activeFile, s.activeProbe, s.activeItem,
                           s.previousFile, s.previousProbe, s.previousItem) +
                 formatted("codes %d %d, value %d view %d table %d", s.choiceA, s.choiceB, s.physicalValue,
                           s.activeView, s.displaySwitch) +
                 formatted(", lags %d, width %g", s.lastTruncationPoint, s.filter.halfWidth) +
                 (document_.IsModified() ? ", modified" : "") + (heard_.empty() ? "" : ", told " + heard_) + "\n  ";
        for (int i = 0; i < kCommandCount; ++i) {
            const vorlan::CommandState state = commandState(document_, static_cast<vorlan::Command>(i));
            text_ += state.checked ? 'x' : state.enabled ? '+' : '-';
        }
        text_ +=
            formatted("\n  %s%s, ", stageRow(document_.CurrentStage()).name, document_.ShowsTable() ? " table" : "");
        for (int mark = 0; mark < kDoneMarkCount; ++mark) {
            const auto done = static_cast<DoneMark>(mark);
            text_ += probe().IsOld(done) ? '!' : probe().IsDone(done) ? '+' : '-';
        }
        for (const std::size_t part : {SAdvProbe::kDissipationRate, SAdvProbe::kTimeScales}) {
            text_ += probe().ResultsAreOld(part) ? '!' : probe().resultBlock[part] != 0.0 ? '+' : '-';
        }
        text_ += probe() == before ? "" : ", another record";
        text_ += document_.UndoName() == nullptr ? "" : std::string(", undo ") + document_.UndoName();
        text_ += document_.RedoName() == nullptr ? "" : std::string(", redo ") + document_.RedoName();
        for (const auto& [sign, said] : {std::pair("?", port.questions), {"!", port.refusals}, {":", port.reports}}) {
            for (const std::string& line : said) {
                text_ += std::string("\n  ") + sign + " " + line;
            }
        }
        text_ += "\n";
        port.clear();
        heard_.clear();
    }
    const std::string& text() const { return text_; }

  private:
    SAdvProbe probe() const { return document_.HasProbe() ? document_.Probe() : SAdvProbe(); }

    CVorl_ADVDoc document_{port};
    std::string heard_;
    std::string text_;
};

TEST(Document, IsLedThroughASession) {
    Session session;
    using Doc = CVorl_ADVDoc;
    const std::string path = ::testing::TempDir() + "session.avp";
    session.after("new", [](Doc&) {});
    session.after("select a file that is not there", [](Doc& d) { d.SelectFile(0); });
    session.after("simulate", [](Doc& d) { d.SimulateTimeSeries(sampleParameters(), 7); });
    session.after("select a file before the first", [](Doc& d) { d.SelectFile(-1); });
    session.after("select the probe", [](Doc& d) { d.SelectProbe(0); });
    session.after("save", [&](Doc& d) { d.SaveWorkspace(path); });
    session.after("stresses", [](Doc& d) { d.SelectPhysicalValue(PhysicalValue::Stresses); });
    session.after("the diagram", [](Doc& d) { d.ShowTable(false); });
    session.after("the table", [](Doc& d) { d.ShowTable(true); });
    for (const Pane pane : {Pane::RightBottom, Pane::LeftBottom, Pane::RightTop, Pane::LeftTop}) {
        session.after("another view", [pane](Doc& d) { d.SelectActivePane(pane); });
    }
    session.after("zoom", [](Doc& d) { d.EnterZoomMode(); });
    session.after("clip", [](Doc& d) { d.Clip(4.0, 36.0); });
    session.after("reset", [](Doc& d) { d.ResetTimeSeries(); });
    session.after("stationarity", [](Doc& d) { d.StationarityAnalysis({BandMode::Fixed, 4}); });
    session.after("histograms", [](Doc& d) { d.Distributions({}); });
    session.after("the diagram", [](Doc& d) { d.ShowTable(false); });
    session.after("spectra", [](Doc& d) { d.SpectralAnalysis(lagsOf(20)); });
    session.after("cross-spectra", [](Doc& d) { d.CrossSpectralAnalysis(); });
    session.after("quadrants", [](Doc& d) { d.QuadrantsAnalysis({}); });
    for (const int tab : {1, 2, 3, 4, 5, 0, 9}) {
        session.after(formatted("tab %d", tab), [tab](Doc& d) { d.SelectStage(tab); });
    }
    session.after("the user's mean velocity", [](Doc& d) { d.SetMeanVelocity({MeanVelocityMode::User, 25.0}); });
    session.after("filter", [](Doc& d) {
        FilterSettings settings;
        settings.halfWidth = 1.0;
        d.FilterTimeSeries(settings);
    });
    session.after("remove samples", [](Doc& d) {
        EditingSettings settings;
        settings.treatment = BadSampleTreatment::Remove;
        d.EditTimeSeries(settings);
    });
    session.after("rotate", [](Doc& d) { d.ChangeCoordinateSystem({.heading = 90.0, .position = {1.0, 0.5, 0.0}}); });
    session.after("a clip that is refused", [](Doc& d) { d.Clip(-1.0, 2.0); });
    session.after("vectors", [](Doc& d) { d.VectorsOfMeanVelocities({1, 40, 5.0, 2.0}); });
    session.after("a page", [](Doc& d) { d.SetPage(Stage::Spectral, d.GetWorkspace().pages.GetAt(3)); });
    session.after("the same once more", [&](Doc& d) {
        d.SetMeanVelocity({MeanVelocityMode::User, 12.5});
        d.Distributions({});
        d.SaveWorkspace(path);
        d.SelectStage(0);
        d.SetMeanVelocity({MeanVelocityMode::User, 12.5});
        d.Distributions({});
        d.SetFrame(0, 1, frameOrDefault(d.Probe(), 0, 1));
        d.PlaceProbe(0, 0, {});
        d.SetPage(Stage::Spectral, d.GetWorkspace().pages.GetAt(3));
    });
    session.after("take back", [](Doc& d) { d.Undo(); });
    session.after("do again", [](Doc& d) { d.Redo(); });
    session.after("a frame", [](Doc& d) { d.SetFrame(3, 1, FrameAttributesType{}); });
    session.after("a second file", [](Doc& d) { d.SimulateTimeSeries(sampleParameters(10.0), 8); });
    session.after("the first file", [](Doc& d) { d.SelectFile(0); });
    session.after("the second file", [](Doc& d) { d.SelectFile(1); });
    session.after("close it", [](Doc& d) { d.CloseFile(); });
    session.after("close the first", [](Doc& d) { d.CloseFile(); });
    session.after("open", [&](Doc& d) { d.OpenWorkspace(path); });
    session.after("new", [](Doc& d) { d.NewWorkspace(); });
    std::filesystem::remove(path);
    EXPECT_EQ(test::changeOfApproved("document", session.text()), "");
}

TEST(Document, IsLedAstray) {
    Session session;
    using Doc = CVorl_ADVDoc;
    const std::string path = ::testing::TempDir() + "astray.avp";
    session.after("simulate", [](Doc& d) { simulateAndSelect(d); });
    session.after("too many lags", [](Doc& d) { d.SpectralAnalysis(lagsOf(501)); });
    session.after("a clip before the start", [](Doc& d) { d.Clip(-1.0, 5.0); });
    for (const double width : {0.02, 10.5, 10.0}) {
        session.after("a filter that does nothing", [=](Doc& d) {
            d.FilterTimeSeries({FilterShape::Tukey, FilterType::LowPass, 10.0, width});
        });
    }
    session.after("spectra", [](Doc& d) { d.SpectralAnalysis(lagsOf(500)); });
    session.after("a rate and scales", [](Doc& d) {
        d.ExtractDissipationRate({DissipationSource::Spectrum, 1.0, 2.0});
        d.ExtractScales({ScalesSource::Correlation, -1.0, 2.0});
    });
    session.after("save", [&](Doc& d) { d.SaveWorkspace(path); });
    session.after("stationarity", [](Doc& d) { d.StationarityAnalysis({BandMode::Fixed, 4}); });
    session.after("its tab without its stage", [](Doc& d) {
        WorkspaceSettings found = d.Settings();
        found.activeItem = 0;
        d.RestoreSelection(found);
    });
    session.after("the diagram", [](Doc& d) { d.ShowTable(false); });
    session.port.pumpsLeft = 0;
    session.after("a clip that is cancelled", [](Doc& d) { d.Clip(0.0, 30.0); });
    session.port.answer = false;
    session.after("a reset that changes nothing", [](Doc& d) { d.ResetTimeSeries(); });
    session.port.answer = false;
    session.after("a clip that repeats nothing", [](Doc& d) { d.Clip(0.0, 20.0); });
    session.after("take back", [](Doc& d) { d.Undo(); });
    session.after("do again", [](Doc& d) { d.Redo(); });
    session.after("stationarity again", [](Doc& d) { d.StationarityAnalysis({BandMode::Fixed, 5}); });
    session.after("the rate again", [](Doc& d) { d.ExtractDissipationRate({DissipationSource::Spectrum, 1.0, 2.0}); });
    session.after("back to what was saved", [](Doc& d) {
        while (d.IsModified() && d.Undo() == Outcome::Done) {
        }
    });
    session.after("in front of it", [](Doc& d) { d.Undo(); });
    session.after("beside it", [](Doc& d) { d.SetMeanVelocity({MeanVelocityMode::User, 5.0}); });
    session.after("nothing to do again", [](Doc& d) { d.Redo(); });
    session.after("open", [&](Doc& d) { d.OpenWorkspace(path); });
    session.after("another view", [](Doc& d) { d.SelectActivePane(Pane::RightTop); });
    session.after("zoom", [](Doc& d) { d.EnterZoomMode(); });
    session.after("take it back", [](Doc& d) { d.Undo(); });
    session.after("take the view back", [](Doc& d) { d.Undo(); });
    session.after("the view again", [](Doc& d) { d.Redo(); });
    session.after("two more files", [](Doc& d) {
        simulateAndSelect(d, 10.0);
        simulateAndSelect(d, 11.0);
    });
    session.after("the second file", [](Doc& d) { d.SelectFile(1); });
    session.port.answer = false;
    session.after("close it not", [](Doc& d) { d.CloseFile(); });
    session.after("close it", [](Doc& d) { d.CloseFile(); });
    session.after("close the first", [](Doc& d) { d.CloseFile(); });
    session.after("a file out of range", [](Doc& d) {
        WorkspaceSettings found = d.Settings();
        found.activeFile = found.previousFile = 7;
        found.previousProbe = found.previousItem = 8;
        d.RestoreSelection(found);
    });
    session.after("select another one", [](Doc& d) { d.SelectFile(3); });
    std::filesystem::remove(path);
    EXPECT_EQ(test::changeOfApproved("document-astray", session.text()), "");
}

}  // namespace
}  // namespace vorlan
