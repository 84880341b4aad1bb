#include "ui/dialogs/CExportScopeDlg.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QVBoxLayout>

#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldTips.h"

namespace vorlan {

CExportScopeDlg::CExportScopeDlg(bool allProbes, QWidget* parent)
    : CParameterDialog(QStringLiteral("Export Data"), parent), allProbes_(allProbes) {
    scope_ = radioButtons({QStringLiteral("for &current probe only"), QStringLiteral("for &all files and probes")},
                          allProbes ? 1 : 0, this);
    QGroupBox* scopes = radioBox(QStringLiteral("Table"), scope_);
    scopes->setToolTip(fieldTip("The probes that get a line of the table"));
    body()->addWidget(scopes);
    finish(firstStop(scope_));
}

bool CExportScopeDlg::takeFields(FieldReader&) {
    allProbes_ = scope_->checkedId() == 1;
    return true;
}

}  // namespace vorlan
