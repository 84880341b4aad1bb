#include "app/CommandState.h"

#include <vector>

#include "model/FrameSlot.h"
#include "model/Index.h"
#include "model/StageTable.h"

namespace vorlan {

namespace {

/// What a command may need of the document and the views: why it is not given, empty when it is.
using Need = std::string (*)(const CVorl_ADVDoc& document, const ShownPanes& shown);

std::string somethingDone(const CVorl_ADVDoc& document, const ShownPanes&) {
    return document.UndoName() != nullptr ? "" : "nothing was done since the workspace was opened";
}

std::string somethingUndone(const CVorl_ADVDoc& document, const ShownPanes&) {
    return document.RedoName() != nullptr ? "" : "nothing was taken back";
}

std::string dataFile(const CVorl_ADVDoc& document, const ShownPanes&) {
    return document.HasFile() ? "" : "no data file is selected";
}

std::string probe(const CVorl_ADVDoc& document, const ShownPanes&) {
    return document.HasProbe() ? "" : "no probe is selected";
}

std::string allSamples(const CVorl_ADVDoc& document, const ShownPanes&) {
    return document.Probe().UsesAllSamples()
               ? ""
               : "bad samples were removed from this probe: not all of its samples are used";
}

template <Stage stage>
std::string selected(const CVorl_ADVDoc& document, const ShownPanes&) {
    return document.StageCode() == asInt(stage) + 1
               ? ""
               : std::string("the stage \"") + stageRow(stage).text + "\" is not selected";
}

std::string doneReason(const CVorl_ADVDoc& document, DoneMark mark) {
    return document.Probe().IsDone(mark) ? "" : std::string("this probe has no ") + stageOfMark(mark).results + " yet";
}

template <DoneMark mark>
std::string done(const CVorl_ADVDoc& document, const ShownPanes&) {
    return doneReason(document, mark);
}

std::string exportReason(const CVorl_ADVDoc& document, const ExportKindInfo& info) {
    std::string reason = probe(document, {});
    return reason.empty() && info.needs ? doneReason(document, *info.needs) : reason;
}

std::string tableBesideDiagram(const CVorl_ADVDoc& document, const ShownPanes&) {
    return stageRow(document.CurrentStage()).pane(Pane::RightBottom) == PaneKind::TableOrDiagram
               ? ""
               : "this stage has no table to switch";
}

std::string diagramInView(const CVorl_ADVDoc& document, const ShownPanes& shown) {
    const bool hasDiagram =
        frameSlotOf(document.CurrentStage(), document.ActivePane(), document.CurrentValue(), document.ShowsTable())
            .has_value();
    return hasDiagram && shown.diagramInActivePane ? "" : "the active view shows no diagram";
}

template <Pane... panes>
std::string activeView(const CVorl_ADVDoc& document, const ShownPanes&) {
    return ((document.ActivePane() == panes) || ...) ? "" : "the active view shows another diagram";
}

// The plans span all files.
std::string probeOrPlan(const CVorl_ADVDoc& document, const ShownPanes& shown) {
    return stageRow(document.CurrentStage()).spansAllFiles() ? dataFile(document, shown) : probe(document, shown);
}

std::string somethingForARecipe(const CVorl_ADVDoc& document, const ShownPanes&) {
    return document.CommandsOfProbe().commands.empty() ? "nothing was done to this probe since it was sampled or loaded"
                                                       : "";
}

bool inZoomMode(const CVorl_ADVDoc& document) {
    return document.HasProbe() && document.Probe().zoomMode != 0;
}

bool showsTable(const CVorl_ADVDoc& document) {
    return document.ShowsTable();
}

/// One command: what it needs, told in this order; whether it shows as checked.
struct CommandRow {
    Command command;
    std::vector<Need> needs;
    bool (*checked)(const CVorl_ADVDoc& document) = nullptr;
};

// A need may take for granted what stands before it. The exports need what their own table says.
const std::vector<CommandRow>& commandTable() {
    constexpr Need preProcessing = selected<Stage::PreProcessing>;
    constexpr Need spectralStage = selected<Stage::Spectral>;
    constexpr Need spectraDone = done<DoneMark::Spectral>;
    static const std::vector<CommandRow> rows = {
        {Command::NewWorkspace, {}},
        {Command::OpenWorkspace, {}},
        {Command::SaveWorkspace, {}},
        {Command::SaveWorkspaceAs, {}},
        {Command::ImportTable, {}},
        {Command::CloseFile, {dataFile}},
        {Command::SaveFigure, {dataFile}},
        {Command::SaveRecipe, {probe, somethingForARecipe}},
        {Command::RunRecipe, {}},
        {Command::PageSetup, {dataFile}},
        {Command::PrintPreview, {dataFile}},
        {Command::Print, {dataFile}},
        {Command::RecentWorkspace, {}},
        {Command::Exit, {}},
        {Command::Undo, {somethingDone}},
        {Command::Redo, {somethingUndone}},
        {Command::BitmapCopy, {dataFile}},
        {Command::SelectionToolbar, {}},
        {Command::SpectralToolbar, {}},
        {Command::StatusBar, {}},
        {Command::ResultsTable, {probe, tableBesideDiagram}, showsTable},
        {Command::PlotFrameOptions, {probeOrPlan, diagramInView}},
        {Command::ZoomAndClipping, {probe, preProcessing}, inZoomMode},
        {Command::ResetTimeSeries, {probe, preProcessing}},
        {Command::CoordinateSystem, {probe, preProcessing}},
        {Command::EditingTimeSeries, {probe, preProcessing}},
        {Command::DigitalFiltration, {probe, allSamples}},
        {Command::StationarityAnalysis, {probe, allSamples}},
        {Command::Histograms, {probe}},
        {Command::SpectralAnalysis, {probe, allSamples}},
        {Command::CrossSpectralAnalysis, {probe, allSamples, spectraDone}},
        {Command::QuadrantsAnalysis, {probe, allSamples}},
        {Command::MeanVelocityVectors, {dataFile}},
        {Command::ExtractDissipationRate,
         {probe, spectralStage, spectraDone, activeView<Pane::LeftBottom, Pane::RightTop>, diagramInView}},
        {Command::ExtractScales,
         {probe, spectralStage, spectraDone, activeView<Pane::LeftTop, Pane::LeftBottom>, diagramInView}},
        {Command::TriangleSpectrum, {probe, spectralStage, spectraDone, activeView<Pane::LeftBottom>, diagramInView}},
        {Command::TriangleStructure, {probe, spectralStage, spectraDone, activeView<Pane::RightTop>, diagramInView}},
        {Command::MeanVelocity, {}},
        {Command::GridEditor, {}},
        {Command::SimulateTimeSeries, {}},
        {Command::Manual, {}},
        {Command::About, {}},
    };
    return rows;
}

/// Why the document and the views do not give the command now.
std::string reasonOf(const CVorl_ADVDoc& document, const CommandRow& row, const ShownPanes& shown) {
    std::string reason;
    for (const Need need : row.needs) {
        if (reason.empty()) {
            reason = need(document, shown);
        }
    }
    return reason;
}

}  // namespace

CommandState commandState(const CVorl_ADVDoc& document, Command command, const ShownPanes& shown) {
    CommandState state;
    for (const CommandRow& row : commandTable()) {
        if (row.command == command) {
            state.checked = row.checked != nullptr && row.checked(document);
            state.reason = reasonOf(document, row, shown);
        }
    }
    if (const std::optional<ExportKind> kind = exportOf(command)) {
        state.reason = exportReason(document, exportKindInfo(*kind));
    }
    if (document.IsRunning()) {
        state.reason = "a calculation is running";
    }
    state.enabled = state.reason.empty();
    return state;
}

}  // namespace vorlan
