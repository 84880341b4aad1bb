#include "ui/dialogs/NameSelector.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace vorlan {

NameSelector::NameSelector(const QString& purpose, QWidget* parent) : QComboBox(parent), purpose_(purpose) {
    setToolTip(purpose);
    setAccessibleName(purpose);
    view()->setTextElideMode(Qt::ElideLeft);
}

bool NameSelector::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const QString name = wholeName_.isEmpty() ? currentText() : wholeName_;
        setToolTip(name.isEmpty() ? purpose_ : QStringLiteral("%1: %2").arg(purpose_, name));
    }
    return QComboBox::event(event);
}

void NameSelector::paintEvent(QPaintEvent* event) {
    if (currentIndex() < 0) {
        QComboBox::paintEvent(event);
        return;
    }
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect room = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    constexpr int kMargins = 4;
    option.currentText = fontMetrics().elidedText(currentText(), Qt::ElideLeft, room.width() - kMargins);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

}  // namespace vorlan
