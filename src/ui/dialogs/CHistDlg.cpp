#include "ui/dialogs/CHistDlg.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSlider>

#include "ui/dialogs/CUpDown.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"

namespace vorlan {

namespace {
constexpr int kLargestSpin = 100;
constexpr int kSpinAtOpening = 10;
}  // namespace

CHistDlg::CHistDlg(const HistogramSettings& settings, QWidget* parent)
    : CParameterDialog(QStringLiteral("Univariate Distributions | Histogram Parameters"), parent), values_(settings) {
    auto* box = new QGroupBox(QStringLiteral("Histogram"), this);
    auto* grid = new QGridLayout(box);
    grades_ = new IntegerField(this);
    grades_->setInteger(settings.grades);
    auto* upDown = new CUpDown(0, kLargestSpin, grades_, this);
    upDown->setPosition(kSpinAtOpening);
    barWidth_ = new QSlider(Qt::Horizontal, this);
    const Range range = fieldOf(values_, values_.barWidth).range;
    barWidth_->setRange(static_cast<int>(range.minimum), static_cast<int>(range.maximum));
    barWidth_->setValue(settings.barWidth);
    barWidth_->setMinimumWidth(180);
    barWidthText_ = new QLabel(this);
    barWidthText_->setMinimumWidth(barWidthText_->fontMetrics().horizontalAdvance(QStringLiteral("100%")));
    barWidthText_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    showBarWidth(barWidth_->value());
    normal_ = new QCheckBox(QStringLiteral("&Approximate by Normal Distribution"), this);
    normal_->setChecked(settings.normalApproximation);

    explain(values_, values_.grades, {grades_, upDown});
    explain(values_, values_.barWidth, {barWidth_});
    explain(values_, values_.normalApproximation, {normal_});
    addField(grid, 0, 0, QStringLiteral("&Grades Number:"), grades_);
    grid->addLayout(withUpDown(grades_, upDown), 0, 1);
    addField(grid, 1, 0, QStringLiteral("&Bar Width:"), barWidth_);
    grid->addWidget(barWidthText_, 1, 2);
    body()->addWidget(box);
    body()->addWidget(normal_);
    connect(upDown, &CUpDown::aboutToMove, this, [this, upDown] {
        const std::optional<int> typed = grades_->integer();
        if (typed && !grades_->untouched()) {
            upDown->setPosition(*typed);
        }
    });
    connect(upDown, &CUpDown::moved, this, [this](int grades) { grades_->setText(QString::number(grades)); });
    connect(barWidth_, &QSlider::valueChanged, this, &CHistDlg::showBarWidth);
    finish(grades_);
}

void CHistDlg::showBarWidth(int percent) {
    barWidthText_->setText(QString::number(percent) + QLatin1Char('%'));
}

bool CHistDlg::takeFields(FieldReader& reader) {
    HistogramSettings read = values_;
    read.barWidth = barWidth_->value();
    read.normalApproximation = normal_->isChecked();
    if (!reader.integer(grades_, read.grades).require(refusalOf(read), {{"grades", grades_}}).good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan
