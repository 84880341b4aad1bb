#include "app/CommandState.h"

#include <vector>

#include "model/FrameSlot.h"

namespace vorlan {

namespace {

/// What a command needs; each with the words for a user whose script asks for it too early.
enum class Need {
    DataFile,
    Probe,
    AllSamples,
    PreProcessing,
    SpectralStage,
    StationarityDone,
    HistogramsDone,
    SpectralDone,
    CrossSpectralDone,
    QuadrantsDone,
    TableStage,
    DiagramInView,
    SpectrumOrStructureInView,
    CorrelationOrSpectrumInView,
    SpectrumInView,
    StructureInView,
    NotYetOffered,
};

bool activePaneIsOneOf(const CVorl_ADVDoc& document, Pane a, Pane b) {
    return document.ActivePane() == a || document.ActivePane() == b;
}

bool holds(const CVorl_ADVDoc& document, Need need) {
    const auto done = [&](DoneMark mark) { return document.HasProbe() && document.Probe().IsDone(mark); };
    switch (need) {
        case Need::DataFile:
            return document.HasFile();
        case Need::Probe:
            return document.HasProbe();
        case Need::AllSamples:
            return document.HasProbe() && document.Probe().UsesAllSamples();
        case Need::PreProcessing:
            return document.StageCode() == 1;
        case Need::SpectralStage:
            return document.CurrentStage() == Stage::Spectral;
        case Need::StationarityDone:
            return done(DoneMark::Stationarity);
        case Need::HistogramsDone:
            return done(DoneMark::Histograms);
        case Need::SpectralDone:
            return done(DoneMark::Spectral);
        case Need::CrossSpectralDone:
            return done(DoneMark::CrossSpectral);
        case Need::QuadrantsDone:
            return done(DoneMark::Quadrants);
        case Need::TableStage:
            return document.CurrentStage() == Stage::PreProcessing || document.CurrentStage() == Stage::Histograms;
        case Need::DiagramInView:
            return frameSlotOf(document.CurrentStage(), document.ActivePane(), document.CurrentValue(),
                               document.ShowsTable())
                .has_value();
        case Need::SpectrumOrStructureInView:
            return activePaneIsOneOf(document, Pane::LeftBottom, Pane::RightTop);
        case Need::CorrelationOrSpectrumInView:
            return activePaneIsOneOf(document, Pane::LeftTop, Pane::LeftBottom);
        case Need::SpectrumInView:
            return document.ActivePane() == Pane::LeftBottom;
        case Need::StructureInView:
            return document.ActivePane() == Pane::RightTop;
        case Need::NotYetOffered:
            return false;
    }
    return false;
}

const char* wordsFor(Need need) {
    switch (need) {
        case Need::DataFile:
            return "no data file is selected";
        case Need::Probe:
            return "no probe is selected";
        case Need::AllSamples:
            return "bad samples were removed from this probe: not all of its samples are used";
        case Need::PreProcessing:
            return "the stage \"Pre-Processing\" is not selected";
        case Need::SpectralStage:
            return "the stage \"Spectral Analysis\" is not selected";
        case Need::StationarityDone:
            return "this probe has no stationarity analysis yet";
        case Need::HistogramsDone:
            return "this probe has no histograms yet";
        case Need::SpectralDone:
            return "this probe has no spectral analysis yet";
        case Need::CrossSpectralDone:
            return "this probe has no cross-spectral analysis yet";
        case Need::QuadrantsDone:
            return "this probe has no quadrants analysis yet";
        case Need::TableStage:
            return "this stage has no table to switch";
        case Need::DiagramInView:
        case Need::SpectrumOrStructureInView:
        case Need::CorrelationOrSpectrumInView:
        case Need::SpectrumInView:
        case Need::StructureInView:
            return "the active view shows another diagram";
        case Need::NotYetOffered:
            return "this version does not offer it";
    }
    return "";
}

std::vector<Need> needsOf(Command command) {
    switch (command) {
        case Command::NewWorkspace:
        case Command::OpenWorkspace:
        case Command::SaveWorkspace:
        case Command::SaveWorkspaceAs:
        case Command::RecentWorkspace:
        case Command::Exit:
        case Command::SelectionToolbar:
        case Command::SpectralToolbar:
        case Command::StatusBar:
        case Command::MeanVelocity:
        case Command::SimulateTimeSeries:
        case Command::About:
            return {};
        case Command::CloseFile:
        case Command::BitmapCopy:
            return {Need::DataFile};
        case Command::ExportVelocities:
        case Command::ExportStatistics:
        case Command::ExportScales:
        case Command::ExportStresses:
        case Command::ExportStressStatistics:
        case Command::Histograms:
            return {Need::Probe};
        case Command::ExportStationarity:
            return {Need::Probe, Need::StationarityDone};
        case Command::ExportHistograms:
            return {Need::Probe, Need::HistogramsDone};
        case Command::ExportSpectral:
            return {Need::Probe, Need::SpectralDone};
        case Command::ExportCrossSpectral:
            return {Need::Probe, Need::CrossSpectralDone};
        case Command::ExportContributions:
        case Command::ExportTimes:
        case Command::ExportPatterns:
            return {Need::Probe, Need::QuadrantsDone};
        case Command::ResultsTable:
            return {Need::Probe, Need::TableStage};
        case Command::PlotFrameOptions:
            return {Need::Probe, Need::DiagramInView};
        case Command::ZoomAndClipping:
        case Command::ResetTimeSeries:
        case Command::CoordinateSystem:
        case Command::EditingTimeSeries:
            return {Need::Probe, Need::PreProcessing};
        case Command::DigitalFiltration:
        case Command::StationarityAnalysis:
        case Command::SpectralAnalysis:
        case Command::QuadrantsAnalysis:
            return {Need::Probe, Need::AllSamples};
        case Command::CrossSpectralAnalysis:
            return {Need::Probe, Need::AllSamples, Need::SpectralDone};
        // Offered once their stage exists.
        case Command::PageSetup:
        case Command::PrintPreview:
        case Command::Print:
        case Command::MeanVelocityVectors:
        case Command::ExtractDissipationRate:
        case Command::ExtractScales:
        case Command::TriangleSpectrum:
        case Command::TriangleStructure:
        case Command::GridEditor:
            return {Need::NotYetOffered};
    }
    return {Need::NotYetOffered};
}

}  // namespace

CommandState commandState(const CVorl_ADVDoc& document, Command command) {
    CommandState state;
    state.enabled = disabledReason(document, command).empty();
    if (command == Command::ZoomAndClipping) {
        state.checked = document.HasProbe() && document.Probe().zoomMode != 0;
    } else if (command == Command::ResultsTable) {
        state.checked = document.ShowsTable();
    }
    return state;
}

std::string disabledReason(const CVorl_ADVDoc& document, Command command) {
    if (document.IsRunning()) {
        return "a calculation is running";
    }
    for (const Need need : needsOf(command)) {
        if (!holds(document, need)) {
            return wordsFor(need);
        }
    }
    return {};
}

}  // namespace vorlan
