#include "ui/dialogs/CVectorsDlg.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"

namespace vorlan {

CVectorsDlg::CVectorsDlg(const VectorSettings& settings, QWidget* parent)
    : CParameterDialog(QStringLiteral("Vectors of Mean Velocities | View Parameters"), parent), values_(settings) {
    plane_ = radioButtons({QStringLiteral("&XY   (Top view)"), QStringLiteral("X&Z   (Side view)"),
                           QStringLiteral("&Y&Z   (Front view)")},
                          settings.plane, this);
    auto* scale = new QGroupBox(QStringLiteral("Scale of Mean Velocity :"), this);
    pixels_ = new IntegerField(this);
    pixels_->setInteger(settings.pixels);
    speed_ = new NumberField(this);
    speed_->setNumber(settings.speed);
    smaller_ = new NumberField(this);
    smaller_->setNumber(settings.smaller);
    explain(values_, values_.pixels, {pixels_});
    explain(values_, values_.speed, {speed_});
    explain(values_, values_.smaller, {smaller_});

    const auto row = [this](std::initializer_list<QWidget*> parts) {
        auto* line = new QHBoxLayout;
        for (QWidget* part : parts) {
            line->addWidget(part);
        }
        line->addStretch();
        return line;
    };
    scale->setLayout(row(
        {pixels_, new QLabel(QStringLiteral("pixels are"), this), speed_, new QLabel(QStringLiteral("cm/s"), this)}));
    QGroupBox* planes = radioBox(QStringLiteral("Plane:"), plane_);
    explain(values_, values_.plane, {planes});
    body()->addWidget(planes);
    body()->addWidget(scale);
    body()->addLayout(row({new QLabel(QStringLiteral("Scale of Min and Max Velocities is "), this), smaller_,
                           new QLabel(QStringLiteral("times smaller than Mean"), this)}));
    finish(firstStop(plane_));
}

bool CVectorsDlg::takeFields(FieldReader& reader) {
    VectorSettings read = values_;
    read.plane = chosen(plane_, values_.plane);
    reader.integer(pixels_, read.pixels).number(speed_, read.speed).number(smaller_, read.smaller);
    reader.require(refusalOf(read), {{"pixels", pixels_}, {"speed", speed_}, {"smaller", smaller_}}, QMessageBox::Ok);
    if (!reader.good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan
