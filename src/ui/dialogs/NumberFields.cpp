#include "ui/dialogs/NumberFields.h"

#include "ui/dialogs/NumberText.h"

namespace vorlan {

namespace {
// Enough for the numbers people type; longer ones scroll.
constexpr int kNumberDigits = 12;
constexpr int kIntegerDigits = 7;

QSize roomFor(const QLineEdit& field, QSize hint, int digits) {
    constexpr int kFrameAndMargins = 14;
    const int width = field.fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits + kFrameAndMargins;
    return {width, hint.height()};
}
}  // namespace

NumberField::NumberField(QWidget* parent) : QLineEdit(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void NumberField::setNumber(double value) {
    shown_ = value;
    shownText_ = numberText(value);
    setText(shownText_);
}

std::optional<double> NumberField::number() const {
    return untouched() && !shownText_.isNull() ? std::optional(shown_) : parsedNumber(text());
}

QSize NumberField::sizeHint() const {
    return roomFor(*this, QLineEdit::sizeHint(), kNumberDigits);
}

IntegerField::IntegerField(QWidget* parent) : QLineEdit(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void IntegerField::setInteger(int value) {
    shownText_ = QString::number(value);
    setText(shownText_);
}

std::optional<int> IntegerField::integer() const {
    return parsedInteger(text());
}

QSize IntegerField::sizeHint() const {
    return roomFor(*this, QLineEdit::sizeHint(), kIntegerDigits);
}

}  // namespace vorlan
