#include "ui/views/tools/PaneTool.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <optional>

namespace vorlan {

namespace {

constexpr int kLongStep = 10;

std::optional<QPoint> directionOf(int key) {
    switch (key) {
        case Qt::Key_Left:
            return QPoint(-1, 0);
        case Qt::Key_Right:
            return QPoint(1, 0);
        case Qt::Key_Up:
            return QPoint(0, -1);
        case Qt::Key_Down:
            return QPoint(0, 1);
        default:
            return std::nullopt;
    }
}

}  // namespace

void PaneTool::mousePress(const QMouseEvent& event) {
    if (event.button() == Qt::LeftButton) {
        press(event.position().toPoint());
    } else if (event.button() == Qt::RightButton) {
        rightPress();
    }
}

bool PaneTool::mouseMove(const QMouseEvent& event) {
    return move(event.position().toPoint(), event.buttons().testFlag(Qt::LeftButton));
}

void PaneTool::mouseRelease(const QMouseEvent& event) {
    if (event.button() == Qt::LeftButton) {
        release(event.position().toPoint());
    }
}

bool PaneTool::keyPress(const QKeyEvent& event) {
    if (const std::optional<QPoint> direction = directionOf(event.key())) {
        const int pixels = event.modifiers().testFlag(Qt::ControlModifier) ? kLongStep : 1;
        moveBy(*direction * pixels, event.modifiers().testFlag(Qt::ShiftModifier));
        return true;
    }
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        accept();
        return true;
    }
    if (event.key() == Qt::Key_Escape) {
        Q_EMIT left();
        return true;
    }
    return false;
}

}  // namespace vorlan
