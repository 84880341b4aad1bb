#include "ui/dialogs/CFilterDlg.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <algorithm>

#include "model/Index.h"
#include "ui/dialogs/CUpDown.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"
#include "ui/dialogs/NumberText.h"

namespace vorlan {

namespace {
constexpr int kLargestSpin = 1000;

// The up-down pair starts at the whole seconds of the half width.
int spinPosition(double halfWidth) {
    return halfWidth >= 0.0 ? static_cast<int>(std::min<double>(halfWidth, kLargestSpin)) : 0;
}
}  // namespace

CFilterDlg::CFilterDlg(const FilterSettings& settings, QWidget* parent)
    : CParameterDialog(QStringLiteral("Digital Filtration | Parameters"), parent), values_(settings) {
    shape_ = radioButtons({QStringLiteral("&Rectangle (averaging)"), QStringLiteral("&Tukey's cos-filter"),
                           QStringLiteral("&Gaussian-shaped"), QStringLiteral("&Bell-shaped")},
                          asInt(settings.shape), this);
    type_ = radioButtons({QStringLiteral("&Low-pass"), QStringLiteral("&High-pass"), QStringLiteral("B&and-pass"),
                          QStringLiteral("Band-&cut")},
                         asInt(settings.type), this);
    auto* top = new QHBoxLayout;
    QGroupBox* shapes = radioBox(QStringLiteral("Filter Shape"), shape_);
    QGroupBox* types = radioBox(QStringLiteral("Filter Type"), type_);
    explain(values_, values_.shape, {shapes});
    explain(values_, values_.type, {types});
    top->addWidget(shapes, 1);
    top->addWidget(types, 1);
    body()->addLayout(top);
    body()->addWidget(kernelBox());

    for (const FilterType band : {FilterType::BandPass, FilterType::BandCut}) {
        type_->button(asInt(band))->setEnabled(allowsType(settings.shape, band));
    }
    cutoff_->setEnabled(settings.shape == FilterShape::Gaussian);
    connect(shape_, &QButtonGroup::idClicked, this, &CFilterDlg::chooseShape);
    connect(halfWidthUpDown_, &CUpDown::aboutToMove, this, [this] {
        const std::optional<double> typed = halfWidth_->number();
        if (typed && !halfWidth_->untouched()) {
            halfWidthUpDown_->setPosition(spinPosition(*typed));
        }
    });
    connect(halfWidthUpDown_, &CUpDown::moved, this,
            [this](int seconds) { halfWidth_->setText(twoDecimals(seconds)); });
    finish(firstStop(shape_));
}

QWidget* CFilterDlg::kernelBox() {
    auto* box = new QGroupBox(this);
    auto* grid = new QGridLayout(box);
    cutoff_ = new NumberField(this);
    cutoff_->setNumber(values_.cutoff);
    halfWidth_ = new NumberField(this);
    halfWidth_->setNumber(values_.halfWidth);
    halfWidthUpDown_ = new CUpDown(0, kLargestSpin, halfWidth_, this);
    halfWidthUpDown_->setPosition(spinPosition(values_.halfWidth));
    explain(values_, values_.cutoff, {cutoff_});
    explain(values_, values_.halfWidth, {halfWidth_, halfWidthUpDown_});
    addField(grid, 0, 0, QStringLiteral("&Cutoff frequency [Hz]:"), cutoff_);
    addField(grid, 1, 0, QStringLiteral("Digital filter half &width [sec] :"), halfWidth_);
    grid->addLayout(withUpDown(halfWidth_, halfWidthUpDown_), 1, 1);
    grid->setColumnStretch(0, 1);
    return box;
}

void CFilterDlg::chooseShape(int id) {
    const auto shape = static_cast<FilterShape>(id);
    type_->button(asInt(defaultTypeOf(shape)))->setChecked(true);
    for (QAbstractButton* button : type_->buttons()) {
        button->setEnabled(allowsType(shape, static_cast<FilterType>(type_->id(button))));
    }
    cutoff_->setEnabled(shape == FilterShape::Gaussian);
}

bool CFilterDlg::takeFields(FieldReader& reader) {
    FilterSettings read = values_;
    read.shape = static_cast<FilterShape>(chosen(shape_, asInt(values_.shape)));
    read.type = static_cast<FilterType>(chosen(type_, asInt(values_.type)));
    reader.number(cutoff_, read.cutoff).number(halfWidth_, read.halfWidth);
    if (!reader.require(refusalOf(read), {{"half_width", halfWidth_}, {"cutoff", cutoff_}}).good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan
