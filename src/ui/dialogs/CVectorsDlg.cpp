#include "ui/dialogs/CVectorsDlg.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"

namespace vorlan {

CVectorsDlg::CVectorsDlg(const VectorSettings& settings, QWidget* parent)
    : CParameterDialog(QStringLiteral("Vectors of Mean Velocities | View Parameters"), parent), values_(settings) {
    plane_ = radioButtons({QStringLiteral("&XY   (Top view)"), QStringLiteral("X&Z   (Side view)"),
                           QStringLiteral("&Y&Z   (Front view)")},
                          settings.plane, this);
    auto* scale = new QGroupBox(QStringLiteral("Scale of Mean Velocity :"), this);
    pixels_ = new IntegerField(this);
    pixels_->setInteger(settings.pixels);
    pixels_->setToolTip(QStringLiteral("Length of an arrow of the given velocity, pixels above 0"));
    speed_ = new NumberField(this);
    speed_->setNumber(settings.speed);
    speed_->setToolTip(QStringLiteral("Velocity whose arrow has the given length, cm/s above 0"));
    smaller_ = new NumberField(this);
    smaller_->setNumber(settings.smaller);
    smaller_->setToolTip(QStringLiteral("Arrows of minima and maxima are drawn so many times smaller, above 0"));

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
    body()->addWidget(radioBox(QStringLiteral("Plane:"), plane_));
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
