#include "ui/frame/MenuTable.h"

#include <algorithm>

#include "export/ExportKind.h"

namespace vorlan {

namespace {

constexpr const char* kExport = "&Export Data";

MenuItem separator() {
    return {};
}

MenuItem exportItem(const ExportKindInfo& info) {
    MenuItem item{info.menuText, exportCommand(info.kind), "", info.prompt};
    item.submenu = kExport;
    return item;
}

MenuItem checkable(const char* text, Command command, const char* prompt, const char* toolTip = "") {
    MenuItem item{text, command, "", prompt, toolTip};
    item.checkable = true;
    return item;
}

std::vector<Menu> buildMenus() {
    std::vector<Menu> menus = {
        {"&File",
         {
             {"&New", Command::NewWorkspace, "Ctrl+N", "Start an empty workspace"},
             {"&Open...", Command::OpenWorkspace, "Ctrl+O", "Open a workspace file"},
             {"&Save", Command::SaveWorkspace, "Ctrl+S", "Save the workspace"},
             {"Save &As...", Command::SaveWorkspaceAs, "Ctrl+Shift+S", "Save the workspace under another name"},
             {"&Import Table...", Command::ImportTable, "", "Bring a record in from a text table"},
             {"C&lose File", Command::CloseFile, "", "Close the active data file"},
             separator(),
             {"Save Fi&gure...", Command::SaveFigure, "", "Write the active view, all four or the page as a picture"},
             {"Save &Recipe...", Command::SaveRecipe, "", "Write what was done to the active probe as a recipe"},
             {"Run Re&cipe...", Command::RunRecipe, "", "Do the steps of a recipe"},
             separator(),
             {"Page Set&up...", Command::PageSetup, "", "Lay out the printed page of this stage"},
             {"Print Pre&view", Command::PrintPreview, "", "Show the page as it will be printed"},
             {"&Print...", Command::Print, "Ctrl+P", "Print the panes of this stage"},
             separator(),
             {"Recent Workspace", Command::RecentWorkspace, "", "Open this workspace"},
             separator(),
             {"E&xit", Command::Exit, "Ctrl+Q", "Leave Vorlan"},
         }},
        {"&Edit",
         {
             {"&Undo", Command::Undo, "Ctrl+Z", "Take the last command back"},
             {"&Redo", Command::Redo, "Ctrl+Shift+Z", "Do again what was taken back"},
             separator(),
             {"&Bitmap copy", Command::BitmapCopy, "Ctrl+C", "Copy the active view to the clipboard"},
         }},
        {"&View",
         {
             checkable("&Data Selection Toolbar", Command::SelectionToolbar, "Show or hide the data selection toolbar"),
             checkable("&Spectral Analysis Toolbar", Command::SpectralToolbar,
                       "Show or hide the spectral analysis toolbar"),
             checkable("Status &Bar", Command::StatusBar, "Show or hide the status bar"),
             separator(),
             checkable("&Results Table", Command::ResultsTable, "Show the table or the diagram at the right bottom"),
             {"Plot &Frame Options...", Command::PlotFrameOptions, "Ctrl+F", "Change the diagram of the active view"},
         }},
        {"&Pre-Processing",
         {
             checkable("&Zoom and Clipping", Command::ZoomAndClipping, "Zoom time series"),
             {"&Reset Time Series", Command::ResetTimeSeries, "", "Reload active time series",
              "Reset Zoom and Clipping"},
             separator(),
             {"&Coordinate System...", Command::CoordinateSystem, "", "Rotate the velocities, place the probe"},
             {"&Editing Time Series...", Command::EditingTimeSeries, "", "Find and treat bad samples"},
             {"&Digital Filtration...", Command::DigitalFiltration, "", "Filter the velocities"},
         }},
        {"&Analysis",
         {
             {"&Stationarity Analysis...", Command::StationarityAnalysis, "", "Moments by bands of the record"},
             {"&Histograms...", Command::Histograms, "", "Distributions and moments of the velocities"},
             {"S&pectral Analysis...", Command::SpectralAnalysis, "", "Correlation, spectra and structure functions"},
             {"&Cross-Spectral Analysis...", Command::CrossSpectralAnalysis, "",
              "Cross-spectra, coherence and phase of the stresses"},
             {"&Quadrants Analysis and Averaging...", Command::QuadrantsAnalysis, "",
              "Contributions by quadrant and averaged event patterns"},
             {"&Vectors of Mean Velocities...", Command::MeanVelocityVectors, "", "Plan of the mean velocity vectors"},
         }},
        {"&Tools",
         {
             {"&Extract Dissipation Rate", Command::ExtractDissipationRate, "Ctrl+E",
              "Read the dissipation rate off the diagram"},
             {"Extract &Scales", Command::ExtractScales, "", "Read integral scales off the diagram"},
             {"Draw &Triangle -5/3", Command::TriangleSpectrum, "", "Draw Triangle -5/3"},
             {"Draw T&riangle 2/3", Command::TriangleStructure, "", "Draw Triangle 2/3"},
             {"&Mean Velocity...", Command::MeanVelocity, "", "Choose the convective velocity"},
             separator(),
             {"&Grid and Boundaries Editor...", Command::GridEditor, "", "Edit boundaries and probe positions"},
             {"S&imulate Time Series...", Command::SimulateTimeSeries, "", "Make a synthetic record"},
         }},
        {"&Help",
         {{"&Manual", Command::Manual, "F1", "Read about what is shown"},
          {"&About Vorlan...", Command::About, "", "Version and licence"}}},
    };
    std::vector<MenuItem>& file = menus.front().items;
    const auto behindClose = std::find_if(file.begin(), file.end(),
                                          [](const MenuItem& item) { return item.command == Command::SaveFigure; });
    std::vector<MenuItem> exports;
    for (const ExportKindInfo& info : exportKinds()) {
        exports.push_back(exportItem(info));
    }
    file.insert(behindClose, exports.begin(), exports.end());
    return menus;
}

}  // namespace

const std::vector<Menu>& menuTable() {
    static const std::vector<Menu> menus = buildMenus();
    return menus;
}

const std::vector<Command>& spectralToolbarCommands() {
    static const std::vector<Command> commands = {
        Command::SpectralAnalysis, Command::CrossSpectralAnalysis, Command::ExtractDissipationRate,
        Command::ExtractScales,    Command::TriangleSpectrum,      Command::TriangleStructure,
        Command::MeanVelocity,
    };
    return commands;
}

}  // namespace vorlan
