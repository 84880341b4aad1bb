#include "ui/dialogs/CExportDlg.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QVBoxLayout>

#include "model/Index.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldTips.h"

namespace vorlan {

CExportDlg::CExportDlg(const ExportOptions& options, QWidget* parent)
    : CParameterDialog(QStringLiteral("Export | as an ASCII file"), parent), values_(options) {
    auto* contents = new QGroupBox(QStringLiteral("Contents"), this);
    auto* column = new QVBoxLayout(contents);
    header_ = new QCheckBox(QStringLiteral("&Header field"), this);
    header_->setChecked(options.header);
    time_ = new QCheckBox(QStringLiteral("&Time values [sec]"), this);
    time_->setChecked(options.time);
    header_->setToolTip(fieldTip("A line in front that names the columns"));
    time_->setToolTip(fieldTip("A first column with the times", "s"));
    column->addWidget(header_);
    column->addWidget(time_);
    column->addStretch();
    separator_ = radioButtons({QStringLiteral("&Space"), QStringLiteral("Ta&b"), QStringLiteral("&Comma")},
                              asInt(options.separator), this);
    auto* groups = new QHBoxLayout;
    groups->addWidget(contents, 1);
    QGroupBox* separators = radioBox(QStringLiteral("Separator"), separator_);
    separators->setToolTip(fieldTip("Stands between the columns"));
    groups->addWidget(separators, 1);
    body()->addLayout(groups);
    finish(header_);
}

bool CExportDlg::takeFields(FieldReader&) {
    values_.header = header_->isChecked();
    values_.time = time_->isChecked();
    values_.separator = static_cast<Separator>(chosen(separator_, asInt(values_.separator)));
    return true;
}

}  // namespace vorlan
