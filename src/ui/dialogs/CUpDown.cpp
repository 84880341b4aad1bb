#include "ui/dialogs/CUpDown.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace vorlan {

namespace {
constexpr int kWidth = 20;
}

CUpDown::CUpDown(int minimum, int maximum, QLineEdit* buddy, QWidget* parent)
    : QWidget(parent), minimum_(minimum), maximum_(maximum), position_(minimum) {
    const int fieldHeight = buddy != nullptr ? buddy->sizeHint().height() : QLineEdit().sizeHint().height();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(arrow(Qt::UpArrow, "up", 1));
    column->addWidget(arrow(Qt::DownArrow, "down", -1));
    setFixedSize(kWidth, fieldHeight);
    if (buddy != nullptr) {
        buddy->installEventFilter(this);
    } else {
        setFocusPolicy(Qt::StrongFocus);
    }
}

QToolButton* CUpDown::arrow(Qt::ArrowType type, const char* name, int by) {
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setArrowType(type);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    connect(button, &QToolButton::clicked, this, [this, by] { step(by); });
    return button;
}

void CUpDown::setPosition(int position) {
    position_ = std::clamp(position, minimum_, maximum_);
}

void CUpDown::setRange(int minimum, int maximum) {
    minimum_ = minimum;
    maximum_ = std::max(minimum, maximum);
    setPosition(position_);
}

void CUpDown::step(int by) {
    Q_EMIT aboutToMove();
    const int before = position_;
    setPosition(position_ + by);
    if (position_ != before) {
        Q_EMIT moved(position_);
    }
}

bool CUpDown::stepByKey(int key) {
    if (!isEnabled() || (key != Qt::Key_Up && key != Qt::Key_Down)) {
        return false;
    }
    step(key == Qt::Key_Up ? 1 : -1);
    return true;
}

bool CUpDown::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && stepByKey(static_cast<QKeyEvent*>(event)->key())) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void CUpDown::keyPressEvent(QKeyEvent* event) {
    if (!stepByKey(event->key())) {
        QWidget::keyPressEvent(event);
    }
}

void CUpDown::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (hasFocus()) {
        QStylePainter painter(this);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
}

void CUpDown::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void CUpDown::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

}  // namespace vorlan
