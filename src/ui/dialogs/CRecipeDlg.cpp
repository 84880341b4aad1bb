#include "ui/dialogs/CRecipeDlg.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "ui/dialogs/FieldLayout.h"

namespace vorlan {

CRecipeDlg::CRecipeDlg(const RecipeSummary& recipe, QWidget* parent)
    : CParameterDialog(QStringLiteral("Run Recipe"), parent), onActiveProbe_(recipe.hasProbe) {
    probes_ = radioButtons(
        {QStringLiteral("The &active probe"), QStringLiteral("What the recipe &selects: %1").arg(recipe.selected)},
        onActiveProbe_ ? 0 : 1, this);
    probes_->button(0)->setEnabled(recipe.hasProbe);
    probes_->button(0)->setToolTip(QStringLiteral("The steps are done to the probe that is shown"));
    probes_->button(1)->setToolTip(QStringLiteral("The files and probes that the recipe names, all without"));
    body()->addWidget(radioBox(QStringLiteral("Done to"), probes_));
    auto* box = new QGroupBox(QStringLiteral("Steps of %1").arg(recipe.name), this);
    auto* steps = new QPlainTextEdit(recipe.steps.join(QLatin1Char('\n')), box);
    steps->setReadOnly(true);
    steps->setTabChangesFocus(true);
    steps->setMinimumSize(440, 180);
    steps->setToolTip(QStringLiteral("All steps become one command that Undo takes back"));
    (new QVBoxLayout(box))->addWidget(steps);
    body()->addWidget(box);
    finish(firstStop(probes_));
}

bool CRecipeDlg::takeFields(FieldReader&) {
    onActiveProbe_ = chosen(probes_, 1) == 0;
    return true;
}

}  // namespace vorlan
