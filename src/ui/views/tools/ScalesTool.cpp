#include "ui/views/tools/ScalesTool.h"

#include <utility>

#include "stages/TurbulenceReadOut.h"
#include "ui/views/CVorl_ADVView.h"

namespace vorlan {

void ScalesTool::begin() {
    if (!view().geometry()) {
        Q_EMIT left();
        return;
    }
    band_ = std::make_unique<QRubberBand>(QRubberBand::Rectangle, &view());
}

void ScalesTool::giveUpDrag() {
    if (dragging_) {
        dragging_ = false;
        ends_.reset();
        band_->hide();
    }
}

ScalesReading ScalesTool::reading(int leftX, int rightX) const {
    const CScreenUtils& g = *view().geometry();
    return {source_, g.xValue(leftX), g.xValue(rightX)};
}

void ScalesTool::show() {
    band_->setGeometry(QRect(ends_->fixed, ends_->free).normalized());
    band_->show();
    Q_EMIT readOut(QString::fromStdString(rangeReadOut(reading(ends_->fixed.x(), ends_->free.x()))));
}

void ScalesTool::press(QPoint position) {
    ends_ = Ends{position, position};
    dragging_ = true;
    show();
}

bool ScalesTool::move(QPoint position, bool buttonHeld) {
    if (dragging_ && !buttonHeld) {
        giveUpDrag();
    }
    if (dragging_) {
        ends_->free = position;
        show();
    }
    return ends_.has_value();
}

void ScalesTool::release(QPoint position) {
    if (dragging_) {
        ends_->free = position;
        accept();
    }
}

void ScalesTool::moveBy(QPoint step, bool otherEnd) {
    const CScreenUtils& g = *view().geometry();
    if (!ends_) {
        // The keys begin with a range from the left edge of the plot area.
        ends_ = Ends{{g.originX, g.originY}, {g.originX + g.width / 3, g.originY - g.height}};
    }
    (otherEnd ? ends_->fixed : ends_->free) += QPoint(step.x(), 0);
    show();
}

void ScalesTool::accept() {
    if (!ends_) {
        return;
    }
    const auto [leftX, rightX] = std::minmax({ends_->fixed.x(), ends_->free.x()});
    dragging_ = false;
    ends_.reset();
    band_->hide();
    Q_EMIT chosen(reading(leftX, rightX));
}

}  // namespace vorlan
