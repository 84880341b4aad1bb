#include "ui/views/CVorl_ADVView.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRubberBand>
#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

#include "model/Index.h"
#include "plot/PaintPane.h"
#include "ui/views/tools/PaneTool.h"

namespace vorlan {

namespace {
constexpr int kFrameWidth = 2;
// A drag below this many pixels is a click.
constexpr int kSmallestDrag = 8;
// Pixels that an edge moves with Ctrl.
constexpr int kLongStep = 10;
}  // namespace

CVorl_ADVView::CVorl_ADVView(Pane pane, QWidget* parent) : QWidget(parent), pane_(pane) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QString::fromUtf8(kPaneTexts[asSize(pane)]));
}

CVorl_ADVView::~CVorl_ADVView() = default;

void CVorl_ADVView::setContent(PaneContent content) {
    endTool();
    endDrag();
    content_ = std::move(content);
    geometry_.reset();
    stale_ = true;
}

void CVorl_ADVView::repaintStale() {
    if (std::exchange(stale_, false)) {
        repaint();
    }
}

void CVorl_ADVView::setActive(bool active) {
    if (active_ != active) {
        active_ = active;
        update();
    }
    if (!active) {
        endTool();
    }
}

void CVorl_ADVView::beginTool(std::unique_ptr<PaneTool> tool) {
    endTool();
    endDrag();
    if (!geometry_) {
        repaint();  // tools need to know where the diagram stands
    }
    tool_ = std::move(tool);
    setFocus();
    setCursor(Qt::CrossCursor);
    tool_->begin();
}

void CVorl_ADVView::endTool() {
    if (!tool_) {
        return;
    }
    tool_.reset();
    unsetCursor();
    if (auto* diagram = std::get_if<Diagram>(&content_)) {
        diagram->triangles.clear();
    }
    update();
    Q_EMIT toolEnded(pane_);
}

void CVorl_ADVView::showTriangle(const SlopeTriangle& triangle) {
    if (auto* diagram = std::get_if<Diagram>(&content_)) {
        diagram->triangles = {triangle};
        diagram->triangles.front().held = true;
        update();
    }
}

QRect CVorl_ADVView::pageArea() const {
    return rect().adjusted(kFrameWidth, kFrameWidth, -kFrameWidth, -kFrameWidth);
}

QImage CVorl_ADVView::bitmap() const {
    const double ratio = devicePixelRatioF();
    QImage image(pageArea().size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintPane(painter, QRect(QPoint(0, 0), pageArea().size()), content_);
    return image;
}

void CVorl_ADVView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), active_ ? palette().highlight() : palette().mid());
    painter.save();
    painter.setClipRect(pageArea());
    try {
        geometry_ = paintPane(painter, pageArea(), content_);
    } catch (const std::bad_alloc&) {
        // Nobody can be told while a widget is painted.
        painter.fillRect(pageArea(), Qt::white);
        painter.drawText(pageArea(), Qt::AlignCenter, QStringLiteral("Out of memory."));
        geometry_.reset();
    }
    if (tool_) {
        tool_->paint(painter);
    }
    painter.restore();
}

void CVorl_ADVView::setIntervalSelection(std::optional<SampleAxis> record) {
    if (record_ && !record) {
        endDrag();
        unsetCursor();
    }
    record_ = record;
}

void CVorl_ADVView::showInterval() {
    if (band_ == nullptr) {
        band_ = new QRubberBand(QRubberBand::Rectangle, this);
    }
    const int left = withinPlot(geometry_->xPixel(interval_.from()));
    const int right = withinPlot(geometry_->xPixel(interval_.to()));
    band_->setGeometry(left, geometry_->originY - geometry_->height, right - left + 1, geometry_->height);
    band_->show();
    Q_EMIT intervalDragged(pane_, interval_.from(), interval_.to());
}

void CVorl_ADVView::chooseInterval() {
    const IntervalSelection chosen = interval_;
    endDrag();
    if (chosen.from() < chosen.to()) {
        Q_EMIT intervalChosen(pane_, chosen.from(), chosen.to());
    }
}

bool CVorl_ADVView::keyOfInterval(const QKeyEvent& event) {
    if (record_ && !geometry_) {
        repaint();  // nobody has seen yet where the diagram stands
    }
    if (!record_ || !geometry_) {
        return false;
    }
    IntervalSelection::Step step;
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right: {
            const double tenPixels = kLongStep * std::abs(geometry_->xScale) / record_->interval;
            const int samples = event.modifiers().testFlag(Qt::ControlModifier)
                                    ? static_cast<int>(std::clamp(tenPixels, 1.0, 1.0 * record_->count))
                                    : 1;
            step.samples = event.key() == Qt::Key_Left ? -samples : samples;
            break;
        }
        case Qt::Key_Home:
            step.toStart = true;
            break;
        case Qt::Key_End:
            step.toEnd = true;
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (interval_.isOn() && !pressedAt_) {
                chooseInterval();
            }
            return true;
        default:
            return false;
    }
    interval_.move(step, event.modifiers().testFlag(Qt::ShiftModifier), *record_);
    showInterval();
    return true;
}

int CVorl_ADVView::withinPlot(int x) const {
    return geometry_ ? std::clamp(x, geometry_->originX, geometry_->originX + geometry_->width) : x;
}

void CVorl_ADVView::endDrag() {
    interval_.end();
    pressedAt_.reset();
    if (band_ != nullptr) {
        band_->hide();
    }
}

void CVorl_ADVView::mousePressEvent(QMouseEvent* event) {
    Q_EMIT activated(pane_);
    menuSpent_ = tool_ && event->button() == Qt::RightButton;
    if (tool_) {
        tool_->mousePress(*event);
        return;
    }
    const QPoint position = event->position().toPoint();
    if (record_ && event->button() == Qt::LeftButton && geometry_.has_value() &&
        geometry_->contains(position.x(), position.y())) {
        endDrag();
        pressedAt_ = position.x();
        interval_.press(geometry_->xValue(position.x()));
        cursor_ = position;
    }
    QWidget::mousePressEvent(event);
}

void CVorl_ADVView::mouseMoveEvent(QMouseEvent* event) {
    cursor_ = event->position().toPoint();
    if (tool_ && tool_->mouseMove(*event)) {
        return;
    }
    if (pressedAt_.has_value() && !event->buttons().testFlag(Qt::LeftButton)) {
        // Released where this window did not see it.
        endDrag();
    }
    if (record_ && geometry_.has_value()) {
        setCursor(geometry_->contains(cursor_.x(), cursor_.y()) ? Qt::CrossCursor : Qt::ArrowCursor);
    }
    if (pressedAt_.has_value() && geometry_.has_value()) {
        interval_.drag(geometry_->xValue(withinPlot(cursor_.x())));
        showInterval();
    } else if (!interval_.isOn()) {
        Q_EMIT cursorMoved(pane_, cursor_);
    }
}

void CVorl_ADVView::mouseReleaseEvent(QMouseEvent* event) {
    if (tool_) {
        tool_->mouseRelease(*event);
        return;
    }
    if (event->button() == Qt::LeftButton && pressedAt_.has_value() && geometry_.has_value()) {
        const int to = withinPlot(event->position().toPoint().x());
        const bool click = std::abs(to - *pressedAt_) < kSmallestDrag;
        if (interval_.isByKeys()) {
            chooseInterval();
        } else if (click) {
            endDrag();
            Q_EMIT cursorMoved(pane_, cursor_);  // in place of the interval
        } else {
            interval_.drag(geometry_->xValue(to));
            chooseInterval();
        }
    }
    QWidget::mouseReleaseEvent(event);
}

void CVorl_ADVView::keyPressEvent(QKeyEvent* event) {
    if (tool_ && tool_->keyPress(*event)) {
        return;
    }
    if (keyOfInterval(*event)) {
        return;
    }
    if (event->key() == Qt::Key_Escape && interval_.isOn()) {
        endDrag();
        // The interval is forgotten: what is read is under the cursor again, or nothing.
        if (rect().contains(cursor_)) {
            Q_EMIT cursorMoved(pane_, cursor_);
        } else {
            Q_EMIT cursorLeft(pane_);
        }
        return;
    }
    QWidget::keyPressEvent(event);
}

void CVorl_ADVView::leaveEvent(QEvent* event) {
    // What a tool or an interval reads stays: it is not what is under the mouse.
    if (!tool_ && !interval_.isOn()) {
        Q_EMIT cursorLeft(pane_);
    }
    QWidget::leaveEvent(event);
}

void CVorl_ADVView::focusInEvent(QFocusEvent* event) {
    // A window that comes to the front again chooses nothing.
    if (event->reason() != Qt::ActiveWindowFocusReason) {
        Q_EMIT activated(pane_);
    }
    QWidget::focusInEvent(event);
}

void CVorl_ADVView::focusOutEvent(QFocusEvent* event) {
    endDrag();
    if (tool_) {
        tool_->giveUpDrag();
    }
    QWidget::focusOutEvent(event);
}

void CVorl_ADVView::resizeEvent(QResizeEvent* event) {
    endTool();
    endDrag();
    QWidget::resizeEvent(event);
}

void CVorl_ADVView::contextMenuEvent(QContextMenuEvent* event) {
    if (tool_ || std::exchange(menuSpent_, false)) {
        return;
    }
    Q_EMIT activated(pane_);
    Q_EMIT menuRequested(pane_, event->globalPos());
}

}  // namespace vorlan
