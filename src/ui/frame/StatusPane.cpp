#include "ui/frame/StatusPane.h"

#include <QHBoxLayout>
#include <algorithm>

namespace vorlan {

namespace {
constexpr int kBarWidth = 150;
constexpr int kGap = 8;
}  // namespace

StatusPane::StatusPane(QWidget* parent)
    : QWidget(parent),
      label_(new QLabel(this)),
      bar_(new QProgressBar(this)),
      escape_(new QLabel(QStringLiteral("Esc cancels"), this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->addWidget(label_);
    label_->setTextFormat(Qt::PlainText);
    // A long read-out must not widen the window.
    label_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bar_->setRange(0, 100);
    bar_->setTextVisible(false);
    bar_->hide();
    escape_->hide();
    setText(QStringLiteral("Ready"));
}

void StatusPane::setText(const QString& text) {
    if (label_->text() != text) {
        label_->setText(text);
        placeBesideText();
    }
}

void StatusPane::showRun() {
    escape_->show();
    placeBesideText();
}

void StatusPane::showProgress(int offset) {
    offset_ = offset;
    bar_->setValue(0);
    bar_->show();
    bar_->raise();
    showRun();
}

void StatusPane::hideRun() {
    bar_->hide();
    escape_->hide();
}

void StatusPane::placeBesideText() {
    const int behindText = label_->x() + label_->fontMetrics().horizontalAdvance(label_->text()) + kGap;
    const int left = std::max(offset_, behindText);
    const int barHeight = std::max(8, height() - 4);
    bar_->setGeometry(left, (height() - barHeight) / 2, kBarWidth, barHeight);
    const QSize hint = escape_->sizeHint();
    escape_->setGeometry(bar_->isHidden() ? behindText : bar_->geometry().right() + kGap,
                         (height() - hint.height()) / 2, hint.width(), hint.height());
}

void StatusPane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeBesideText();
}

}  // namespace vorlan
