#include "ui/dialogs/CMeanVelDlg.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "model/Index.h"
#include "model/Text.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"
#include "ui/dialogs/NumberFields.h"

namespace vorlan {

namespace {
constexpr int kUserMode = asInt(MeanVelocityMode::User);
}

CMeanVelDlg::CMeanVelDlg(const MeanVelocitySettings& settings, std::optional<double> averaged, QWidget* parent)
    : CParameterDialog(QStringLiteral("Mean Velocity | Parameters"), parent), values_(settings) {
    mode_ = radioButtons({QStringLiteral("&Averaged Flow Velocity   ="), QStringLiteral("&Defined by the User [cm/s]")},
                         asInt(settings.mode), this);
    auto* box = new QGroupBox(QStringLiteral("Convective velocity"), this);
    auto* average = new QLabel(box);
    if (averaged.has_value()) {
        average->setText(QString::fromStdString(formatted("%.2f cm/s", *averaged)));
    }
    value_ = new NumberField(box);
    value_->setNumber(settings.value);
    value_->setEnabled(settings.mode == MeanVelocityMode::User);
    box->setToolTip(fieldTip("Velocity that carries the turbulence past the probe, by which times become lengths"));
    value_->setToolTip(fieldTip("Convective velocity", "cm/s", fieldOf(settings, settings.value).range));
    auto* grid = new QGridLayout(box);
    grid->addWidget(mode_->button(0), 0, 0);
    grid->addWidget(average, 0, 1);
    grid->addWidget(mode_->button(kUserMode), 1, 0);
    grid->addWidget(value_, 1, 1);
    body()->addWidget(box);
    connect(mode_, &QButtonGroup::idClicked, this, [this](int mode) { value_->setEnabled(mode == kUserMode); });
    finish(firstStop(mode_));
}

bool CMeanVelDlg::takeFields(FieldReader& reader) {
    MeanVelocitySettings read = values_;
    read.mode = static_cast<MeanVelocityMode>(chosen(mode_, asInt(values_.mode)));
    const Range range = fieldOf(values_, values_.value).range;
    if (!reader.number(value_, read.value, range.minimum, range.maximum).good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan
