#include "ui/frame/PaneGrid.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QSplitter>

#include "stages/BeginningHint.h"
#include "stages/PaneDescription.h"

namespace vorlan {

namespace {
// Sizes are shares of what there is.
constexpr int kEqualShare = 10000;
}  // namespace

PaneGrid::PaneGrid(QWidget* parent) : QWidget(parent) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* columns = new QSplitter(Qt::Horizontal, this);
    auto* left = new QSplitter(Qt::Vertical, columns);
    auto* right = new QSplitter(Qt::Vertical, columns);
    views_ = {new CLTopView(left), new CLBotView(left), new RTopView(right), new CRBotView(right)};
    for (QSplitter* splitter : {columns, left, right}) {
        splitter->setChildrenCollapsible(false);
        splitter->setHandleWidth(4);
        splitter->setStretchFactor(0, 1);
        splitter->setStretchFactor(1, 1);
        splitter->handle(1)->installEventFilter(this);
        splitter->handle(1)->setToolTip(QStringLiteral("Drag to change the sizes; double click for equal ones"));
    }
    layout->addWidget(columns);
}

bool PaneGrid::eventFilter(QObject* watched, QEvent* event) {
    auto* border = qobject_cast<QSplitterHandle*>(watched);
    if (border != nullptr && event->type() == QEvent::MouseButtonDblClick) {
        border->splitter()->setSizes({kEqualShare, kEqualShare});
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void PaneGrid::timerEvent(QTimerEvent*) {
    views_[next_]->repaintStale();
    if (++next_ == kPaneCount) {
        turn_.stop();
    }
}

void PaneGrid::describe(const CVorl_ADVDoc& document, DocumentPort& port) {
    std::array<PaneContent, kPaneCount> contents;
    const auto describeAll = [&] {
        const bool empty = document.GetWorkspace().dataFiles.files.IsEmpty();
        for (std::size_t i = 0; i < kPaneCount; ++i) {
            const Pane pane = views_[i]->pane();
            contents[i] =
                empty ? PaneContent(beginningHint(pane))
                      : describePane({document.GetWorkspace(), document.ActiveFile(), document.ActiveProbe(),
                                      document.CurrentStage(), pane, document.CurrentValue(), document.ShowsTable()});
        }
    };
    // The user can change nothing during a run. At other times the next event could be a command.
    document.IsRunning() ? port.work(describeAll) : describeAll();
    for (std::size_t i = 0; i < kPaneCount; ++i) {
        views_[i]->setContent(std::move(contents[i]));
    }
    next_ = 0;
    turn_.start(0, this);
}

void PaneGrid::setActivePane(Pane pane) {
    for (CVorl_ADVView* view : views_) {
        view->setActive(view->pane() == pane);
    }
}

}  // namespace vorlan
