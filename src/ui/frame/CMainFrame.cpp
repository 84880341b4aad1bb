#include "ui/frame/CMainFrame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include "model/Index.h"
#include "stages/PaneDescription.h"
#include "stages/PlanReadOut.h"
#include "stages/TurbulenceReadOut.h"
#include "ui/dialogs/CGridEdit.h"
#include "ui/frame/ManualPages.h"
#include "ui/frame/MenuTable.h"

namespace vorlan {

namespace {

bool isWorkspace(const QString& path) {
    return path.endsWith(QLatin1String(".avp"), Qt::CaseInsensitive);
}

// The first workspace among dropped files, else all the tables; others are ignored.
QStringList droppedFiles(const QMimeData& data) {
    QStringList tables;
    for (const QUrl& url : data.urls()) {
        if (!url.isLocalFile()) {
            continue;
        }
        const QString path = url.toLocalFile();
        if (isWorkspace(path)) {
            return {path};
        }
        for (const char* suffix : {".csv", ".txt", ".dat", ".tsv"}) {
            if (path.endsWith(QLatin1String(suffix), Qt::CaseInsensitive)) {
                tables << path;
            }
        }
    }
    return tables;
}

// The file stays where it is: a source that is told of a move may delete it.
void acceptCopy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

}  // namespace

CMainFrame::CMainFrame(QWidget* parent)
    : QMainWindow(parent),
      port_(*this, platformBoxes_),
      document_(port_),
      files_(document_, *this),
      actions_(new CommandActions(*menuBar(), this)),
      selectionBar_(new SelectionBar(this)),
      tabs_(new StageTabs(this)),
      panes_(new PaneGrid(this)),
      statusPane_(new StatusPane(this)),
      waiting_(new QLabel(this)),
      hint_(new QLabel(this)),
      tools_(
          document_, *panes_,
          {[this](const QString& text) { statusPane_->setText(text); }, [this](const QString& text) { showHint(text); },
           [this](const QString& text) { showReport(text); }, [this] { showRest(); }}),
      commands_(document_, files_, *panes_, tools_, *this),
      recovery_(document_, *this) {
    setAcceptDrops(true);
    auto* centre = new QWidget(this);
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 2, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabs_);
    layout->addWidget(panes_, 1);
    setCentralWidget(centre);
    buildBars();
    buildShortcuts();
    connectWidgets();
    setBoxes(platformBoxes_);
    // The whole window on a small screen, its frame included.
    resize(QSize(1200, 800).boundedTo(screen()->availableSize() - QSize(16, 48)));
    documentChanged(Change::Content);
    actions_->setRecentFiles(files_.recentPaths());
}

void CMainFrame::setBoxes(UserBoxes& boxes) {
    port_.setBoxes(boxes);
    files_.setBoxes(boxes);
    commands_.setBoxes(boxes);
    recovery_.setBoxes(boxes);
}

void CMainFrame::buildBars() {
    addToolBar(selectionBar_);
    addToolBarBreak();
    spectralBar_ = addToolBar(QStringLiteral("Spectral Analysis"));
    spectralBar_->setObjectName(QStringLiteral("SpectralBar"));
    spectralBar_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const Command command : spectralToolbarCommands()) {
        spectralBar_->addAction(actions_->of(command));
    }
    statusBar()->addWidget(statusPane_, 1);
    statusBar()->addPermanentWidget(waiting_);
    waiting_->setTextFormat(Qt::PlainText);
    waiting_->hide();
    statusBar()->addPermanentWidget(hint_);
    hint_->setTextFormat(Qt::PlainText);
    hint_->hide();
    port_.setStatusPane(statusPane_);

    const auto bindSwitch = [this](Command command, QWidget* bar) {
        QAction* action = actions_->of(command);
        action->setChecked(true);
        connect(action, &QAction::toggled, this, [this, action, bar](bool on) {
            showBar(*bar, on);
            showReport(action->toolTip() + QLatin1String(on ? " shown" : " hidden"));
        });
    };
    bindSwitch(Command::SelectionToolbar, selectionBar_);
    bindSwitch(Command::SpectralToolbar, spectralBar_);
    bindSwitch(Command::StatusBar, statusBar());
    // The bars' own context menu and close handles would bypass the View menu.
    setContextMenuPolicy(Qt::NoContextMenu);
}

void CMainFrame::showBar(QWidget& bar, bool on) {
    // A selector that goes with its bar must not pass the focus to just any pane, which would become the active view.
    if (!on && focusWidget() != nullptr && bar.isAncestorOf(focusWidget())) {
        panes_->view(document_.ActivePane()).setFocus();
    }
    bar.setVisible(on);
}

void CMainFrame::buildShortcuts() {
    const auto bind = [this](const char* keys, auto handler) {
        connect(new QShortcut(QKeySequence(QString::fromLatin1(keys)), this), &QShortcut::activated, this, handler);
    };
    const auto stepTab = [this](int step) {
        if (tabs_->count() > 0 && !document_.IsRunning()) {
            tabs_->setCurrentIndex((tabs_->currentIndex() + step + tabs_->count()) % tabs_->count());
        }
    };
    bind("Ctrl+Tab", [stepTab] { stepTab(1); });
    bind("Ctrl+Shift+Tab", [stepTab] { stepTab(-1); });
    bind("F6", [this] { cyclePane(1); });
    bind("Shift+F6", [this] { cyclePane(-1); });
}

void CMainFrame::connectWidgets() {
    commands_.setReportFunction([this](const QString& text) { showReport(text); });
    commands_.setPort(port_);
    recovery_.setReportFunction([this](const QString& text) { showReport(text); });
    qApp->installEventFilter(new DialogHelp(this));
    document_.SetListener([this](Change change) { documentChanged(change); });
    port_.setRunListener([this](bool running) { runStateChanged(running); });
    port_.setReportListener([this](const QString& text) {
        QStringList parts{text, std::exchange(resultsGrownOld_, QString())};
        parts.removeAll(QString());
        showReport(parts.join(QStringLiteral("   ")));
        // The status bar is behind it.
        for (CGridEdit* editor : findChildren<CGridEdit*>()) {
            editor->showReport(text);
        }
    });
    connect(actions_, &CommandActions::triggered, this, &CMainFrame::runCommand);
    connect(actions_, &CommandActions::recentChosen, &files_, &WorkspaceFiles::openRecent);
    connect(&files_, &WorkspaceFiles::recentListChanged, this,
            [this] { actions_->setRecentFiles(files_.recentPaths()); });
    connect(&files_, &WorkspaceFiles::waiting, this, [this](const QString& text) {
        text.isEmpty() ? showRest() : statusPane_->setText(text);
        statusPane_->repaint();
    });
    connect(selectionBar_, &SelectionBar::fileChosen, this, [this](int index) { document_.SelectFile(index); });
    connect(selectionBar_, &SelectionBar::probeChosen, this, [this](int index) { document_.SelectProbe(index); });
    connect(selectionBar_, &SelectionBar::valueChosen, this,
            [this](PhysicalValue value) { document_.SelectPhysicalValue(value); });
    connect(selectionBar_, &SelectionBar::paneChosen, this, [this](Pane pane) { document_.SelectActivePane(pane); });
    connect(tabs_, &StageTabs::stageChosen, this, [this](int index) { document_.SelectStage(index); });
    for (CVorl_ADVView* view : panes_->views()) {
        connect(view, &CVorl_ADVView::activated, this, [this](Pane pane) {
            if (!document_.IsRunning() && document_.ActivePane() != pane) {
                document_.SelectActivePane(pane);
            }
        });
        connect(view, &CVorl_ADVView::cursorMoved, this, &CMainFrame::showCursorValues);
        connect(view, &CVorl_ADVView::cursorLeft, this, [this] {
            if (!document_.IsRunning()) {
                showRest();
            }
        });
        connect(view, &CVorl_ADVView::menuRequested, this, &CMainFrame::showPaneMenu);
        connect(view, &CVorl_ADVView::intervalDragged, this, &CMainFrame::showDraggedInterval);
        connect(view, &CVorl_ADVView::intervalChosen, this, &CMainFrame::clipToInterval);
    }
}

void CMainFrame::runCommand(Command command) {
    if (commandState(document_, command, shownPanes()).enabled) {
        commands_.run(command);
        if (command == Command::ZoomAndClipping) {
            // Its keys are those of the diagram that is cut.
            panes_->view(Pane::LeftTop).setFocus();
        }
    }
    refreshCommands();
}

void CMainFrame::documentChanged(Change change) {
    if (change != Change::View) {
        panes_->describe(document_, port_);
    }
    selectionBar_->refresh(document_);
    tabs_->refresh(document_);
    panes_->setActivePane(document_.ActivePane());
    panes_->view(Pane::LeftTop).setIntervalSelection(clippedRecord());
    refreshCommands();
    refreshTitle();
    std::string old = document_.HasProbe() ? oldResultsText(document_.Probe()) : std::string();
    resultsGrownOld_ = old != oldResults_ ? QString::fromStdString(old) : QString();
    oldResults_ = std::move(old);
    if (change != Change::View) {
        showReport(resultsGrownOld_);
    }
    recovery_.keep();
}

void CMainFrame::showReport(const QString& text) {
    report_ = text;
    showRest();
}

void CMainFrame::showRest() {
    statusPane_->setText(report_.isEmpty() ? QStringLiteral("Ready") : report_);
}

void CMainFrame::refreshCommands() {
    actions_->update(document_, shownPanes());
}

ShownPanes CMainFrame::shownPanes() const {
    return {panes_->view(document_.ActivePane()).showsDiagram()};
}

void CMainFrame::refreshTitle() {
    setWindowTitle(QStringLiteral("%1[*] - Vorlan").arg(files_.documentName()));
    setWindowModified(document_.IsModified());
}

void CMainFrame::runStateChanged(bool running) {
    if (running) {
        focusBeforeRun_ = focusWidget();
    }
    selectionBar_->refresh(document_);
    tabs_->refresh(document_);
    refreshCommands();
    if (running) {
        return;
    }
    waiting_->hide();
    // Disabled controls pass the focus on; it belongs to where the user left it.
    if (focusBeforeRun_ != nullptr) {
        focusBeforeRun_->setFocus();
    }
    // What the user asked for while nothing could be done, once the command has ended.
    QTimer::singleShot(0, this, [this] {
        if (document_.IsRunning()) {
            return;
        }
        recovery_.keep();
        if (!dropWhenDone_.isEmpty()) {
            takeDropped(std::exchange(dropWhenDone_, {}));
        }
        if (std::exchange(closeWhenDone_, false)) {
            close();
        }
    });
}

void CMainFrame::showWaiting(const QString& text) {
    waiting_->setText(text);
    waiting_->show();
}

void CMainFrame::showHint(const QString& text) {
    hint_->setText(text);
    hint_->setVisible(!text.isEmpty());
}

void CMainFrame::showCursorValues(Pane pane, QPoint position) {
    const CVorl_ADVView& view = panes_->view(pane);
    if (document_.IsRunning() || !view.geometry().has_value()) {
        return;
    }
    const auto* diagram = std::get_if<Diagram>(&view.content());
    const std::string text = document_.CurrentStage() == Stage::MeanVelocityVectors && diagram != nullptr
                                 ? planReadOut(*diagram, *view.geometry(), position.x(), position.y())
                                 : readOut(document_.CurrentStage(), pane, document_.CurrentValue(), *view.geometry(),
                                           position.x(), position.y());
    if (text.empty()) {
        showRest();
    } else {
        statusPane_->setText(QString::fromStdString(text));
    }
}

std::optional<SampleAxis> CMainFrame::clippedRecord() const {
    if (!document_.HasProbe() || document_.Probe().zoomMode == 0 || document_.CurrentStage() != Stage::PreProcessing) {
        return std::nullopt;
    }
    const SampleAxis record{document_.Probe().samplingInterval, document_.Probe().WorkingSamples()};
    return record.interval > 0.0 && record.count > 0 ? std::optional(record) : std::nullopt;
}

void CMainFrame::showDraggedInterval(Pane pane, double from, double to) {
    if (!document_.IsRunning()) {
        statusPane_->setText(QString::fromStdString(dragReadOut(document_.CurrentStage(), pane, from, to)));
    }
}

void CMainFrame::clipToInterval(Pane, double from, double to) {
    if (!document_.IsRunning()) {
        document_.Clip(from, to);
    }
}

void CMainFrame::showPaneMenu(Pane pane, QPoint globalPosition) {
    QMenu menu(this);
    menu.setToolTipsVisible(true);
    for (const Command command : {Command::BitmapCopy, Command::Print, Command::PlotFrameOptions}) {
        menu.addAction(actions_->of(command));
    }
    if (document_.CurrentStage() == Stage::Spectral && pane != Pane::RightBottom) {
        menu.addSeparator();
        for (const Command command : {Command::ExtractDissipationRate, Command::ExtractScales,
                                      Command::TriangleSpectrum, Command::TriangleStructure}) {
            if (actions_->of(command)->isEnabled()) {
                menu.addAction(actions_->of(command));
            }
        }
    }
    menu.exec(globalPosition);
}

void CMainFrame::cyclePane(int step) {
    if (document_.IsRunning()) {
        return;
    }
    // Clockwise, as the panes stand on the screen.
    constexpr std::array<Pane, kPaneCount> order = {Pane::LeftTop, Pane::RightTop, Pane::RightBottom, Pane::LeftBottom};
    const auto here = std::find(order.begin(), order.end(), document_.ActivePane()) - order.begin();
    panes_->view(order[asSize((here + step + kPaneCount) % kPaneCount)]).setFocus();
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    if (document_.IsRunning()) {
        // The run goes on: its result may be what the user wants to save before leaving.
        closeWhenDone_ = true;
        showWaiting(QStringLiteral("Closing when the calculation ends"));
        event->ignore();
        return;
    }
    event->setAccepted(files_.mayLeave());
    if (event->isAccepted()) {
        recovery_.end();
    }
}

void CMainFrame::dragEnterEvent(QDragEnterEvent* event) {
    if (!droppedFiles(*event->mimeData()).isEmpty()) {
        acceptCopy(*event);
    }
}

void CMainFrame::dragMoveEvent(QDragMoveEvent* event) {
    acceptCopy(*event);
}

void CMainFrame::dropEvent(QDropEvent* event) {
    const QStringList paths = droppedFiles(*event->mimeData());
    if (paths.isEmpty()) {
        return;
    }
    acceptCopy(*event);
    if (document_.IsRunning()) {
        dropWhenDone_ = paths;
        showWaiting(QStringLiteral("%1: opening when the calculation ends").arg(QFileInfo(paths[0]).fileName()));
        return;
    }
    takeDropped(paths);
}

void CMainFrame::takeDropped(const QStringList& paths) {
    if (isWorkspace(paths.front())) {
        files_.openPath(paths.front());
    } else {
        commands_.importTables(paths);
    }
}

}  // namespace vorlan
