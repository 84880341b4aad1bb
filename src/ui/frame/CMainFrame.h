#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <memory>

#include "app/CVorl_ADVDoc.h"
#include "ui/frame/CommandActions.h"
#include "ui/frame/PaneGrid.h"
#include "ui/frame/Recovery.h"
#include "ui/frame/SelectionBar.h"
#include "ui/frame/StageTabs.h"
#include "ui/frame/StatusPane.h"
#include "ui/frame/TurbulenceTools.h"
#include "ui/frame/UserBoxes.h"
#include "ui/frame/UserCommands.h"
#include "ui/frame/WindowPort.h"
#include "ui/frame/WorkspaceFiles.h"

namespace vorlan {

/// The main window: menus, selectors, stage tabs, four panes, status bar, and the document they show.
class CMainFrame : public QMainWindow {
    Q_OBJECT

  public:
    explicit CMainFrame(QWidget* parent = nullptr);

    CVorl_ADVDoc& document() { return document_; }
    CommandActions& actions() { return *actions_; }
    UserCommands& commands() { return commands_; }
    WorkspaceFiles& files() { return files_; }
    PaneGrid& panes() { return *panes_; }
    StatusPane& statusPane() { return *statusPane_; }
    Recovery& recovery() { return recovery_; }
    /// Puts other boxes in the place of the platform's.
    void setBoxes(UserBoxes& boxes);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void buildBars();
    void showBar(QWidget& bar, bool on);
    void buildShortcuts();
    void connectWidgets();
    void runCommand(Command command);
    void takeDropped(const QStringList& paths);
    void documentChanged(Change change);
    void runStateChanged(bool running);
    void showWaiting(const QString& text);
    void showHint(const QString& text);
    void refreshCommands();
    ShownPanes shownPanes() const;
    void refreshTitle();
    void showReport(const QString& text);
    /// What the status bar says while nothing is pointed at.
    void showRest();
    void showCursorValues(Pane pane, QPoint position);
    /// The record of the left top pane while its time may be chosen there.
    std::optional<SampleAxis> clippedRecord() const;
    void showDraggedInterval(Pane pane, double from, double to);
    void clipToInterval(Pane pane, double from, double to);
    void showPaneMenu(Pane pane, QPoint globalPosition);
    void cyclePane(int step);

    UserBoxes platformBoxes_;
    WindowPort port_;
    CVorl_ADVDoc document_;
    WorkspaceFiles files_;
    CommandActions* actions_;
    SelectionBar* selectionBar_;
    QToolBar* spectralBar_ = nullptr;
    StageTabs* tabs_;
    PaneGrid* panes_;
    StatusPane* statusPane_;
    QLabel* waiting_;  ///< what follows the run
    QLabel* hint_;     ///< what a tool waits for
    TurbulenceTools tools_;
    UserCommands commands_;
    Recovery recovery_;
    QPointer<QWidget> focusBeforeRun_;
    QString report_;           ///< how the last command ended
    std::string oldResults_;   ///< what the status bar has said of results older than the record
    QString resultsGrownOld_;  ///< the same, when the last command made them so
    bool closeWhenDone_ = false;
    QStringList dropWhenDone_;
};

}  // namespace vorlan
