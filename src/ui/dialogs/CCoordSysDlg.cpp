#include "ui/dialogs/CCoordSysDlg.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "model/Index.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"

namespace vorlan {

CCoordSysDlg::CCoordSysDlg(const RotationSettings& settings, const QString& coordinateSystem, QWidget* parent)
    : CParameterDialog(QStringLiteral("Coordinate System"), parent), values_(settings) {
    auto* system = new QHBoxLayout;
    system->addWidget(new QLabel(QStringLiteral("Coordinate sytem used in file:"), this));
    system->addWidget(new QLabel(coordinateSystem, this));
    system->addStretch();
    rotate_ = new QCheckBox(QStringLiteral("&Rotate coordinates about  the sampling volume location"), this);
    rotate_->setToolTip(fieldTip("Lets the angles be typed; those that are shown are applied in any case"));
    auto* groups = new QHBoxLayout;
    groups->addWidget(angleBox());
    groups->addWidget(positionBox());
    body()->addLayout(system);
    body()->addWidget(rotate_);
    body()->addLayout(groups);
    finish(rotate_);
}

QWidget* CCoordSysDlg::angleBox() {
    auto* box = new QGroupBox(QStringLiteral("Angles of rotation [deg]"), this);
    auto* grid = new QGridLayout(box);
    heading_ = new NumberField(this);
    pitch_ = new NumberField(this);
    roll_ = new NumberField(this);
    heading_->setNumber(values_.heading);
    pitch_->setNumber(values_.pitch);
    roll_->setNumber(values_.roll);
    addField(grid, 0, 0, QStringLiteral("&Heading:"), heading_);
    addField(grid, 1, 0, QStringLiteral("&Pitch:"), pitch_);
    addField(grid, 2, 0, QStringLiteral("R&oll:"), roll_);
    heading_->setToolTip(fieldTip("Turns U towards V", "degrees"));
    pitch_->setToolTip(fieldTip("Turns V towards W, after the heading", "degrees"));
    roll_->setToolTip(fieldTip("Turns U towards W, after the pitch", "degrees"));
    for (NumberField* angle : {heading_, pitch_, roll_}) {
        angle->setEnabled(false);
        connect(rotate_, &QCheckBox::toggled, angle, &QWidget::setEnabled);
    }
    return box;
}

QWidget* CCoordSysDlg::positionBox() {
    auto* box = new QGroupBox(QStringLiteral("Sampling volume coordinates"), this);
    auto* grid = new QGridLayout(box);
    const std::array<QString, 3> texts{QStringLiteral("&X:"), QStringLiteral("&Y:"), QStringLiteral("&Z:")};
    for (std::size_t i = 0; i < position_.size(); ++i) {
        position_[i] = new NumberField(this);
        position_[i]->setNumber(values_.position[i]);
        position_[i]->setToolTip(fieldTip("Place of the sampling volume", "m"));
        addField(grid, asInt(i), 0, texts[i], position_[i], QStringLiteral("m"));
    }
    return box;
}

bool CCoordSysDlg::takeFields(FieldReader& reader) {
    RotationSettings read = values_;
    reader.number(heading_, read.heading).number(pitch_, read.pitch).number(roll_, read.roll);
    for (std::size_t i = 0; i < position_.size(); ++i) {
        reader.number(position_[i], read.position[i]);
    }
    if (!reader.good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan
