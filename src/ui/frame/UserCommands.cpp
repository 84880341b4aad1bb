#include "ui/frame/UserCommands.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <new>
#include <ostream>

#include "analysis/Simulation.h"
#include "app/CommandReports.h"
#include "io/AtomicFile.h"
#include "io/FileError.h"
#include "io/WorkspaceFile.h"
#include "model/VectorPlan.h"
#include "stages/PaneDescription.h"
#include "ui/dialogs/CCoordSysDlg.h"
#include "ui/dialogs/CEditTSDlg.h"
#include "ui/dialogs/CExportDlg.h"
#include "ui/dialogs/CExportScopeDlg.h"
#include "ui/dialogs/CFilterDlg.h"
#include "ui/dialogs/CGridEdit.h"
#include "ui/dialogs/CHistDlg.h"
#include "ui/dialogs/CMeanVelDlg.h"
#include "ui/dialogs/CPageDlg.h"
#include "ui/dialogs/CPlotOptDlg.h"
#include "ui/dialogs/CQuadrDlg.h"
#include "ui/dialogs/CSimulateDlg.h"
#include "ui/dialogs/CSpAnalDlg.h"
#include "ui/dialogs/CStatDlg.h"
#include "ui/dialogs/CVectorsDlg.h"
#include "ui/frame/AboutBox.h"
#include "ui/frame/ManualPages.h"
#include "ui/frame/ManualWindow.h"
#include "ui/frame/Waiting.h"

namespace vorlan {

void UserCommands::run(Command command) {
    try {
        dispatch(command);
    } catch (const InvalidArgument& error) {
        // A damaged workspace: columns that should be of one length are not.
        boxes_->refuse(&window_, QString::fromUtf8(error.what()));
    } catch (const std::bad_alloc&) {
        boxes_->refuse(&window_, QStringLiteral("Out of memory."));
    }
}

bool UserCommands::accepted(QDialog& dialog) {
    const bool ok = dialog.exec() == QDialog::Accepted;
    if (!ok) {
        report_(QString::fromLatin1(kCancelledReport));
    }
    return ok;
}

template <class Dialog, class Method, class... Arguments>
void UserCommands::ask(Method command, const Arguments&... arguments) {
    Dialog dialog(arguments..., &window_);
    if (accepted(dialog)) {
        (document_.*command)(dialog.values());
    }
}

void UserCommands::dispatch(Command command) {
    const WorkspaceSettings& settings = document_.Settings();
    switch (command) {
        case Command::Undo:
            document_.Undo();
            return;
        case Command::Redo:
            document_.Redo();
            return;
        case Command::BitmapCopy:
            return figures_.copy();
        case Command::SaveFigure:
            return figures_.save(printer_.paper());
        case Command::SaveRecipe:
            return recipes_.save();
        case Command::RunRecipe:
            return recipes_.choose();
        case Command::PageSetup:
            return pageSetup();
        case Command::PrintPreview:
            printer_.preview();
            return report_(QStringLiteral("Preview closed"));
        case Command::Print:
            return print();
        case Command::ResultsTable:
            document_.ShowTable(!document_.ShowsTable());
            return report_(QLatin1String(document_.ShowsTable() ? "Right bottom: table" : "Right bottom: diagram"));
        case Command::PlotFrameOptions:
            return plotFrameOptions();
        case Command::ZoomAndClipping:
            document_.EnterZoomMode();
            return;
        case Command::ResetTimeSeries:
            document_.ResetTimeSeries();
            return;
        case Command::CoordinateSystem:
            ask<CCoordSysDlg>(&CVorl_ADVDoc::ChangeCoordinateSystem, rotationSettingsOf(document_.Probe()),
                              QString::fromLatin1(coordinateSystemText(document_.Probe())));
            return;
        case Command::EditingTimeSeries:
            ask<CEditTSDlg>(&CVorl_ADVDoc::EditTimeSeries, usable(settings.editing));
            return;
        case Command::DigitalFiltration:
            ask<CFilterDlg>(&CVorl_ADVDoc::FilterTimeSeries, usable(settings.filter));
            return;
        case Command::StationarityAnalysis:
            ask<CStatDlg>(&CVorl_ADVDoc::StationarityAnalysis, usable(settings.stationarity));
            return;
        case Command::Histograms:
            ask<CHistDlg>(&CVorl_ADVDoc::Distributions, usable(settings.histograms));
            return;
        case Command::SpectralAnalysis:
            ask<CSpAnalDlg>(&CVorl_ADVDoc::SpectralAnalysis, spectralSettingsOf(settings));
            return;
        case Command::CrossSpectralAnalysis:
            document_.CrossSpectralAnalysis();
            return;
        case Command::QuadrantsAnalysis:
            ask<CQuadrDlg>(&CVorl_ADVDoc::QuadrantsAnalysis, usable(settings.quadrants));
            return;
        case Command::ExtractDissipationRate:
        case Command::ExtractScales:
        case Command::TriangleSpectrum:
        case Command::TriangleStructure:
            return tools_.begin(command);
        case Command::MeanVelocityVectors:
            ask<CVectorsDlg>(&CVorl_ADVDoc::VectorsOfMeanVelocities, shownVectors(document_.GetWorkspace()));
            return;
        case Command::MeanVelocity:
            ask<CMeanVelDlg>(&CVorl_ADVDoc::SetMeanVelocity, document_.Settings().meanVelocity,
                             document_.AveragedVelocity());
            return;
        case Command::GridEditor:
            return editGrid();
        case Command::SimulateTimeSeries:
            return simulate();
        case Command::Manual:
            return showManual(
                window_, document_.HasFile() ? manualPageOf(document_.CurrentStage()) : QStringLiteral("README.md"));
        case Command::About:
            return showAboutBox(window_);
        default:
            break;
    }
    if (const std::optional<ExportKind> kind = exportOf(command)) {
        return exportData(*kind);
    }
    runFileCommand(command);
}

void UserCommands::runFileCommand(Command command) {
    switch (command) {
        case Command::NewWorkspace:
            return reportUnless(files_.newWorkspace(), "Cancelled: the workspace is as it was");
        case Command::OpenWorkspace:
            return reportUnless(files_.open(), "Nothing opened: the workspace is as it was");
        case Command::SaveWorkspace:
            return reportUnless(files_.save(), "Not saved");
        case Command::SaveWorkspaceAs:
            return reportUnless(files_.saveAs(), "Not saved");
        case Command::ImportTable:
            return tables_.choose();
        case Command::CloseFile:
            document_.CloseFile();
            return;
        case Command::Exit:
            window_.close();
            return;
        default:
            return;
    }
}

void UserCommands::reportUnless(bool done, const char* otherwise) {
    if (!done) {
        report_(QString::fromLatin1(otherwise));
    }
}

void UserCommands::simulate() {
    CSimulateDlg dialog(SimulationParameters{}, &window_);
    if (accepted(dialog)) {
        document_.SimulateTimeSeries(dialog.values(), seed_ ? seed_() : seedOfClock());
    }
}

void UserCommands::editGrid() {
    using ChoosePath = QString (UserBoxes::*)(QWidget*, const QString&);
    const auto inFolder = [this](ChoosePath choose) {
        return [this, choose](QWidget* parent, const QString& proposed) {
            const QString path = (boxes_->*choose)(parent, QDir(files_.folder()).filePath(proposed));
            return isRefusedPipe(path, *boxes_, parent) ? QString() : path;
        };
    };
    CGridEdit dialog(
        document_,
        {inFolder(&UserBoxes::chooseNewBoundary), inFolder(&UserBoxes::chooseBoundaryToOpen),
         inFolder(&UserBoxes::chooseBoundaryToSave), [this](const QString& path) { files_.setFolderOf(path); }},
        &window_);
    dialog.exec();
}

void UserCommands::plotFrameOptions() {
    const Pane pane = document_.ActivePane();
    const std::optional<FrameSlot> slot =
        frameSlotOf(document_.CurrentStage(), pane, document_.CurrentValue(), document_.ShowsTable());
    const CVorl_ADVView& view = panes_.view(pane);
    const auto* diagram = std::get_if<Diagram>(&view.content());
    if (!slot.has_value() || diagram == nullptr) {
        return;
    }
    const SAdvProbe* probe = document_.HasProbe() ? &document_.Probe() : nullptr;
    CPlotOptDlg dialog(frameInSlot(document_.GetWorkspace().dataFiles, probe, *slot), diagram->allowedScales,
                       drawnAxesOf(view.geometry()), &window_);
    if (!accepted(dialog)) {
        return;
    }
    const auto change = [&](const FrameSlot& changed, FrameAttributesType& frame) {
        if (changed == *slot) {
            frame = dialog.values();
        } else {
            takeStyle(changed, frame, *slot, dialog.values());
        }
    };
    document_.ChangeFrames(
        dialog.forAllDiagrams() ? frameSlotsOf(document_.CurrentStage()) : std::vector<FrameSlot>{*slot}, change,
        false);
}

void UserCommands::pageSetup() {
    const Stage stage = document_.CurrentStage();
    CPageDlg dialog(pageOfStage(document_.GetWorkspace(), stage), printer_.paper(), &window_);
    dialog.setPaperPicker([this](QWidget* parent) { return printer_.choosePaper(parent); });
    const bool ok = accepted(dialog);
    printer_.takeChosenPaper(ok);
    if (ok) {
        document_.SetPage(stage, dialog.values());
    }
}

void UserCommands::print() {
    const QString done = printer_.print();
    report_(done.isEmpty() ? QStringLiteral("Nothing printed") : done);
}

void UserCommands::exportData(ExportKind kind) {
    const ExportKindInfo& info = exportKindInfo(kind);
    ExportOptions options;
    bool all = false;
    if (info.dialog == ExportDialog::Options) {
        CExportDlg dialog({}, &window_);
        if (!accepted(dialog)) {
            return;
        }
        options = dialog.values();
    } else if (info.dialog == ExportDialog::Scope) {
        CExportScopeDlg dialog(false, &window_);
        if (!accepted(dialog)) {
            return;
        }
        all = dialog.allProbes();
    }
    const QString path =
        boxes_->chooseExport(&window_, QDir(files_.folder()).filePath(QString::fromLatin1(info.defaultFile)));
    if (path.isEmpty() || isRefusedPipe(path, *boxes_, &window_)) {
        return report_(QString::fromLatin1(kCancelledReport));
    }
    const std::string file = QFile::encodeName(path).toStdString();
    const std::string refusal = refusalToReplace(file);
    if (!refusal.empty()) {
        boxes_->refuse(&window_, QFile::decodeName(QByteArray::fromStdString(refusal)) + QLatin1Char('.'));
        return report_(QStringLiteral("Nothing written"));
    }
    files_.setFolderOf(path);
    try {
        {
            const Waiting waiting(files_, "Writing %1 ...", path);
            writeFileAtomically(file, [&](std::ostream& stream) { document_.Export(stream, kind, options, all); });
        }
        report_(QStringLiteral("%1 written").arg(QFileInfo(path).fileName()));
    } catch (const FileError&) {
        // An export ends without a box; the line is all that is said.
        report_(QStringLiteral("Cannot write %1").arg(path));
    }
}

}  // namespace vorlan
