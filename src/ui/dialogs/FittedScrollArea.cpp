#include "ui/dialogs/FittedScrollArea.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>
#include <cmath>

namespace vorlan {

FittedScrollArea::FittedScrollArea(QWidget* content, QSize beside, QWidget* parent)
    : QScrollArea(parent), beside_(beside) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    // The window behind shows through.
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    // The platform follows the Tab key only: not mnemonics, nor a refusal that goes to its field.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && widget()->isAncestorOf(now)) {
            ensureWidgetVisible(now);
        }
    });
}

QSize FittedScrollArea::sizeHint() const {
    const QSize whole = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
    const QSize room = screen()->availableSize() - beside_;
    QSize shown = whole;
    if (whole.height() > room.height()) {
        shown.rwidth() += verticalScrollBar()->sizeHint().width();
    }
    if (shown.width() > room.width()) {
        shown.rheight() += horizontalScrollBar()->sizeHint().height();
    }
    // Where a point is no whole number of the screen's dots, a window may come out smaller by a rounded one.
    constexpr QSize kRounding(2, 2);
    const bool rounds = devicePixelRatioF() != std::floor(devicePixelRatioF());
    return (rounds ? shown + kRounding : shown).boundedTo(room);
}

bool FittedScrollArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

}  // namespace vorlan
