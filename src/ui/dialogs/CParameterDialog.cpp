#include "ui/dialogs/CParameterDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FittedScrollArea.h"

namespace vorlan {

CParameterDialog::CParameterDialog(const QString& title, QWidget* parent)
    : QDialog(parent), rows_(new QVBoxLayout(this)) {
    setWindowTitle(title);
    rows_->setSizeConstraint(QLayout::SetFixedSize);
    auto* fields = new QWidget(this);
    body_ = new QVBoxLayout(fields);
    body_->setContentsMargins(0, 0, 0, 0);
    // On a small screen the fields scroll, and the buttons stay in sight.
    constexpr QSize kButtonsAndFrame(40, 120);
    rows_->addWidget(new FittedScrollArea(fields, kButtonsAndFrame, this));
    // Room for the whole title, which is often bold, beside the icon and the buttons of the window.
    constexpr int kTitleButtons = 120;
    QFont titleFont = font();
    titleFont.setBold(true);
    body_->addStrut(QFontMetrics(titleFont).horizontalAdvance(title) + kTitleButtons);
}

void CParameterDialog::finish(QWidget* firstField) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    // Without mnemonics: the letters belong to the fields.
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Cancel"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &CParameterDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CParameterDialog::reject);
    rows_->addWidget(buttons);
    firstField->setFocus();
}

void CParameterDialog::accept() {
    FieldReader reader(this, show_);
    if (takeFields(reader)) {
        QDialog::accept();
    }
}

}  // namespace vorlan
