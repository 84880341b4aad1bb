// A document through a session, as an approved text: what is selected after every command, and what the listener heard.
#include <gtest/gtest.h>

#include "Approved.h"
#include "RecordingPort.h"
#include "SampleDocument.h"
#include "app/CommandState.h"
#include "model/Text.h"

namespace vorlan {
namespace {

class Session {
  public:
    Session() {
        document_.SetListener([this](Change change) { heard_ += change == Change::Content ? 'c' : 'v'; });
    }

    /// Gives a command and writes its name, what came of it and which commands may be given now.
    template <class Command>
    void after(const std::string& name, const Command& command) {
        command(document_);
        const WorkspaceSettings& s = document_.Settings();
        text_ += name + "\n  " +
                 formatted("file %d probe %d tab %d, before %d %d %d, ", s.activeFile, s.activeProbe, s.activeItem,
                           s.previousFile, s.previousProbe, s.previousItem) +
                 formatted("codes %d %d, value %d view %d table %d", s.choiceA, s.choiceB, s.physicalValue,
                           s.activeView, s.displaySwitch) +
                 (document_.IsModified() ? ", modified" : "") + (heard_.empty() ? "" : ", told " + heard_) + "\n  ";
        for (int i = 0; i < kCommandCount; ++i) {
            const vorlan::CommandState state = commandState(document_, static_cast<vorlan::Command>(i));
            text_ += state.checked ? 'x' : state.enabled ? '+' : '-';
        }
        for (const std::string& question : port_.questions) {
            text_ += "\n  ? " + question;
        }
        for (const std::string& report : port_.reports) {
            text_ += "\n  : " + report;
        }
        text_ += "\n";
        port_.clear();
        heard_.clear();
    }

    const std::string& text() const { return text_; }

  private:
    RecordingPort port_;
    CVorl_ADVDoc document_{port_};
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

}  // namespace
}  // namespace vorlan
