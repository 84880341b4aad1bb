#pragma once

#include "app/CVorl_ADVDoc.h"
#include "export/ExportKind.h"
#include "model/Index.h"

namespace vorlan {

/// Every command that a menu offers, in the order of the menus.
enum class Command : int {
    NewWorkspace,
    OpenWorkspace,
    SaveWorkspace,
    SaveWorkspaceAs,
    ImportTable,
    CloseFile,
    FirstExport,  // one per kind of export, in their order
    LastExport = FirstExport + kExportKindCount - 1,
    SaveFigure,
    SaveRecipe,
    RunRecipe,
    PageSetup,
    PrintPreview,
    Print,
    RecentWorkspace,
    Exit,
    Undo,
    Redo,
    BitmapCopy,
    SelectionToolbar,
    SpectralToolbar,
    StatusBar,
    ResultsTable,
    PlotFrameOptions,
    ZoomAndClipping,
    ResetTimeSeries,
    CoordinateSystem,
    EditingTimeSeries,
    DigitalFiltration,
    StationarityAnalysis,
    Histograms,
    SpectralAnalysis,
    CrossSpectralAnalysis,
    QuadrantsAnalysis,
    MeanVelocityVectors,
    ExtractDissipationRate,
    ExtractScales,
    TriangleSpectrum,
    TriangleStructure,
    MeanVelocity,
    GridEditor,
    SimulateTimeSeries,
    Manual,
    About,
};

inline constexpr int kCommandCount = asInt(Command::About) + 1;

/// The command that offers an export.
inline Command exportCommand(ExportKind kind) {
    return static_cast<Command>(asInt(Command::FirstExport) + asInt(kind));
}

/// The export that a command offers; none for another command.
inline std::optional<ExportKind> exportOf(Command command) {
    if (command < Command::FirstExport || command > Command::LastExport) {
        return std::nullopt;
    }
    return static_cast<ExportKind>(asInt(command) - asInt(Command::FirstExport));
}

/// What the views show, as far as commands depend on it: a stage's diagram may be a message instead.
struct ShownPanes {
    bool diagramInActivePane = true;
};

struct CommandState {
    bool enabled = false;
    bool checked = false;
    std::string reason;  ///< why it is disabled, for the user of a window or a script; empty when it is enabled
};

/// Whether a command may be given now, and whether it shows as checked. The window's own switches (toolbars, status
/// bar) are always enabled here; their check mark is the window's.
CommandState commandState(const CVorl_ADVDoc& document, Command command, const ShownPanes& shown = {});

}  // namespace vorlan
