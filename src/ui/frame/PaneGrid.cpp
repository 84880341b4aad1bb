#include "ui/frame/PaneGrid.h"

#include <QHBoxLayout>
#include <QSplitter>

#include "stages/PaneDescription.h"

namespace vorlan {

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
    }
    layout->addWidget(columns);
}

void PaneGrid::describe(const CVorl_ADVDoc& document) {
    for (CVorl_ADVView* view : views_) {
        view->setContent(
            describePane({document.GetWorkspace(), document.ActiveFile(), document.ActiveProbe(),
                          document.CurrentStage(), view->pane(), document.CurrentValue(), document.ShowsTable()}));
    }
}

void PaneGrid::setActivePane(Pane pane) {
    for (CVorl_ADVView* view : views_) {
        view->setActive(view->pane() == pane);
    }
}

}  // namespace vorlan
