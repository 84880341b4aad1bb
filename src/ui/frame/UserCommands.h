#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>

#include "app/CommandState.h"
#include "ui/frame/Figures.h"
#include "ui/frame/PagePrinter.h"
#include "ui/frame/PaneGrid.h"
#include "ui/frame/RecipeFiles.h"
#include "ui/frame/TableImports.h"
#include "ui/frame/TurbulenceTools.h"
#include "ui/frame/UserBoxes.h"
#include "ui/frame/WorkspaceFiles.h"

namespace vorlan {

/// From a menu command to the document: opens the command's dialog, hands over what the user accepted.
class UserCommands {
  public:
    UserCommands(CVorl_ADVDoc& document, WorkspaceFiles& files, PaneGrid& panes, TurbulenceTools& tools,
                 QWidget& window)
        : document_(document),
          files_(files),
          panes_(panes),
          tools_(tools),
          window_(window),
          printer_(document, window),
          tables_(document, files, window),
          recipes_(document, files, window),
          figures_(document, files, panes, window) {}

    void setBoxes(UserBoxes& boxes) {
        boxes_ = &boxes;
        printer_.setBoxes(boxes);
        tables_.setBoxes(boxes);
        recipes_.setBoxes(boxes);
        figures_.setBoxes(boxes);
    }
    /// Seed of the generator; the calendar time unless replaced.
    void setSeedSource(std::function<std::uint64_t()> source) { seed_ = std::move(source); }
    /// Tells how a command ended that the document does not know.
    void setReportFunction(std::function<void(const QString&)> report) {
        tables_.setReportFunction(report);
        recipes_.setReportFunction(report);
        figures_.setReportFunction(report);
        report_ = std::move(report);
    }

    /// What shows the progress of a recipe's run.
    void setPort(DocumentPort& port) { recipes_.setPort(port); }
    void importTables(const QStringList& paths) { tables_.import(paths); }
    /// Runs a command that commandState() enables.
    void run(Command command);

  private:
    void dispatch(Command command);
    void runFileCommand(Command command);
    void simulate();
    /// Opens a parameter dialog made of arguments and gives the document's command what the user accepted.
    template <class Dialog, class Method, class... Arguments>
    void ask(Method command, const Arguments&... arguments);
    /// Shows a dialog; false, and told, when it was cancelled.
    bool accepted(QDialog& dialog);
    void reportUnless(bool done, const char* otherwise);
    void editGrid();
    void plotFrameOptions();
    void pageSetup();
    void print();
    void exportData(ExportKind kind);

    CVorl_ADVDoc& document_;
    WorkspaceFiles& files_;
    PaneGrid& panes_;
    TurbulenceTools& tools_;
    QWidget& window_;
    PagePrinter printer_;
    TableImports tables_;
    RecipeFiles recipes_;
    Figures figures_;
    UserBoxes* boxes_ = nullptr;
    std::function<std::uint64_t()> seed_;
    std::function<void(const QString&)> report_;
};

}  // namespace vorlan
