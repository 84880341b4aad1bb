#include "ui/dialogs/CQuadrDlg.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"

namespace vorlan {

CQuadrDlg::CQuadrDlg(const QuadrantSettings& settings, QWidget* parent)
    : CParameterDialog(QStringLiteral("Conditional Quadrants Analysis and Averaging"), parent), values_(settings) {
    auto* numbers = new QVBoxLayout;
    numbers->addWidget(holeBox());
    numbers->addWidget(averagingBox());
    auto* groups = new QHBoxLayout;
    groups->addLayout(numbers);
    groups->addWidget(stressBox());
    body()->addLayout(groups);
    finish(increment_);
}

NumberField* CQuadrDlg::newField(double value) {
    auto* field = new NumberField(this);
    field->setNumber(value);
    return field;
}

QWidget* CQuadrDlg::holeBox() {
    auto* box = new QGroupBox(QStringLiteral("Hole Size"), this);
    auto* grid = new QGridLayout(box);
    increment_ = newField(values_.increment);
    maximum_ = newField(values_.maximum);
    // A blank keeps the column of units, so that the fields stand above those of the averaging.
    const QString noUnit = QStringLiteral(" ");
    addField(grid, 0, 0, QStringLiteral("&Hole Size Increment:"), increment_, noUnit);
    addField(grid, 1, 0, QStringLiteral("Hole Size &Maximum Value:"), maximum_, noUnit);
    reserveUnit(grid, QStringLiteral("s"));
    explain(values_, values_.increment, {increment_});
    explain(values_, values_.maximum, {maximum_});
    return box;
}

QWidget* CQuadrDlg::averagingBox() {
    auto* box = new QGroupBox(QStringLiteral("Thresholds and Averaging"), this);
    auto* grid = new QGridLayout(box);
    ejection_ = newField(values_.ejectionThreshold);
    sweep_ = newField(values_.sweepThreshold);
    lag_ = newField(values_.maximumLag);
    addField(grid, 0, 0, QStringLiteral("&Ejection:"), ejection_);
    addField(grid, 1, 0, QStringLiteral("&Sweep:"), sweep_);
    addField(grid, 2, 0, QStringLiteral("Maximum Time &Lag:"), lag_, QStringLiteral("s"));
    reserveUnit(grid, QStringLiteral("s"));
    explain(values_, values_.ejectionThreshold, {ejection_});
    explain(values_, values_.sweepThreshold, {sweep_});
    explain(values_, values_.maximumLag, {lag_});
    return box;
}

QWidget* CQuadrDlg::stressBox() {
    stress_ =
        radioButtons({QStringLiteral("&u'v' (streamwise-transverse)"), QStringLiteral("u'&w' (streamwise-vertical)"),
                      QStringLiteral("&v'w' (transverse-vertical)")},
                     values_.stressType, this);
    QGroupBox* box = radioBox(QStringLiteral("Stress"), stress_);
    explain(values_, values_.stressType, {box});
    auto* column = qobject_cast<QVBoxLayout*>(box->layout());
    column->addWidget(new QLabel(QStringLiteral("1,3 - interactions"), this));
    column->addWidget(new QLabel(QStringLiteral("2 - ejection, 4 - sweep"), this));
    return box;
}

bool CQuadrDlg::takeFields(FieldReader& reader) {
    QuadrantSettings read = values_;
    read.stressType = chosen(stress_, values_.stressType);
    reader.number(increment_, read.increment)
        .number(maximum_, read.maximum)
        .number(ejection_, read.ejectionThreshold)
        .number(sweep_, read.sweepThreshold)
        .number(lag_, read.maximumLag);
    reader.require(
        refusalOf(read),
        {{"ejection", ejection_}, {"maximum", maximum_}, {"lag", lag_}, {"sweep", sweep_}, {"increment", increment_}});
    if (!reader.good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan
