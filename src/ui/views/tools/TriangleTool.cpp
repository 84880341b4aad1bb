#include "ui/views/tools/TriangleTool.h"

#include "stages/TurbulenceReadOut.h"
#include "ui/views/CVorl_ADVView.h"

namespace vorlan {

void TriangleTool::begin() {
    if (!view().geometry()) {
        Q_EMIT left();
    }
}

void TriangleTool::show() {
    const CScreenUtils& g = *view().geometry();
    const DissipationReading begin{source_, g.xValue(ends_->begin.x()), g.yValue(ends_->begin.y())};
    view().showTriangle(slopeTriangle(begin, g.xValue(ends_->end)));
    Q_EMIT readOut(
        QString::fromStdString(dissipationReadOut(begin, dissipationRate(begin, unitSelector_, convectiveVelocity_))));
}

void TriangleTool::press(QPoint position) {
    ends_ = Ends{position, position.x()};
    dragging_ = true;
    show();
}

bool TriangleTool::move(QPoint position, bool buttonHeld) {
    dragging_ = dragging_ && buttonHeld;
    if (dragging_) {
        ends_->end = position.x();
        show();
    }
    return ends_.has_value();
}

void TriangleTool::release(QPoint position) {
    move(position, true);
    dragging_ = false;
}

void TriangleTool::moveBy(QPoint step, bool otherEnd) {
    const CScreenUtils& g = *view().geometry();
    if (!ends_) {
        ends_ = Ends{{g.originX + g.width / 3, g.originY - g.height / 2}, g.originX + g.width * 2 / 3};
    }
    if (otherEnd) {
        ends_->begin += step;
    } else {
        // The free end has no height of its own: up and down move the triangle.
        ends_->end += step.x();
        ends_->begin.ry() += step.y();
    }
    show();
}

}  // namespace vorlan
