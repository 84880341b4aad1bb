#include "ui/dialogs/GridPreviewWidget.h"

#include <QMouseEvent>
#include <QPainter>

#include "plot/PaintPane.h"
#include "stages/PlanReadOut.h"

namespace vorlan {

namespace {
const QColor kBackground(192, 192, 192);
}

GridPreviewWidget::GridPreviewWidget(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(QStringLiteral("Preview"));
}

void GridPreviewWidget::setDiagram(Diagram diagram) {
    diagram_ = std::move(diagram);
    update();
}

void GridPreviewWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    RenderOptions options;
    options.background = kBackground;
    painter.fillRect(rect(), kBackground);
    geometry_ = paintPane(painter, rect(), diagram_, options);
}

void GridPreviewWidget::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    Q_EMIT readOut(geometry_ ? QString::fromStdString(planReadOut(diagram_, *geometry_, at.x(), at.y())) : QString());
}

void GridPreviewWidget::leaveEvent(QEvent* event) {
    Q_EMIT readOut(QString());
    QWidget::leaveEvent(event);
}

}  // namespace vorlan
