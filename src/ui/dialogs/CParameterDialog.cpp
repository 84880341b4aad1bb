#include "ui/dialogs/CParameterDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/dialogs/FieldReader.h"

namespace vorlan {

CParameterDialog::CParameterDialog(const QString& title, QWidget* parent)
    : QDialog(parent), body_(new QVBoxLayout(this)) {
    setWindowTitle(title);
    body_->setSizeConstraint(QLayout::SetFixedSize);
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
    body_->addWidget(buttons);
    firstField->setFocus();
}

void CParameterDialog::accept() {
    FieldReader reader(this, show_);
    if (takeFields(reader)) {
        QDialog::accept();
    }
}

}  // namespace vorlan
