#include "ui/dialogs/CSpAnalDlg.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>

#include "ui/dialogs/CUpDown.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"

namespace vorlan {

namespace {
constexpr int kLargestSpin = 10000;
}  // namespace

CSpAnalDlg::CSpAnalDlg(const SpectralSettings& settings, QWidget* parent)
    : CParameterDialog(QStringLiteral("Spectral Analysis | Parameters"), parent), values_(settings) {
    window_ = radioButtons({QStringLiteral("&Rectangle"), QStringLiteral("&Bartlett"), QStringLiteral("&Tukey"),
                            QStringLiteral("P&arzen")},
                           settings.windowButton, this);
    unit_ = radioButtons({QStringLiteral("Ra&d/s"), QStringLiteral("&Hz")}, settings.unitButton, this);
    auto* top = new QHBoxLayout;
    QGroupBox* windows = radioBox(QStringLiteral("Lag Window"), window_);
    QGroupBox* units = radioBox(QStringLiteral("Frequency Units"), unit_);
    explain<SpectralSettings>(values_, values_.windowButton, {windows});
    explain<SpectralSettings>(values_, values_.unitButton, {units});
    top->addWidget(windows, 1);
    top->addWidget(units, 1);
    body()->addLayout(top);
    body()->addWidget(truncationBox());
    finish(firstStop(window_));
}

QWidget* CSpAnalDlg::truncationBox() {
    auto* box = new QGroupBox(QStringLiteral("Truncation Point"), this);
    mode_ = new QButtonGroup(this);
    auto* percentButton = new QRadioButton(QStringLiteral("&Percent of Time Series Length"), box);
    percent_ = new QSlider(Qt::Horizontal, box);
    percentText_ = new QLabel(box);
    auto* lagsButton = new QRadioButton(QStringLiteral("&Number of Lags"), box);
    lags_ = new IntegerField(box);
    lagsUpDown_ = new CUpDown(0, kLargestSpin, lags_, box);
    mode_->addButton(percentButton, SpectralSettings::kPercentMode);
    mode_->addButton(lagsButton, SpectralSettings::kLagsMode);
    (values_.truncationMode == SpectralSettings::kLagsMode ? lagsButton : percentButton)->setChecked(true);

    explain<SpectralSettings>(values_, values_.truncationMode, {percentButton, lagsButton});
    explain<SpectralSettings>(values_, values_.percent, {percent_});
    explain<SpectralSettings>(values_, values_.lags, {lags_, lagsUpDown_});
    const Range range = fieldOf<SpectralSettings>(values_, values_.percent).range;
    percent_->setRange(static_cast<int>(range.minimum), static_cast<int>(range.maximum));
    percent_->setPageStep(5);
    percent_->setTickInterval(10);
    percent_->setTickPosition(QSlider::TicksBelow);
    percent_->setMinimumWidth(180);
    percent_->setValue(values_.percent);
    percentText_->setMinimumWidth(percentText_->fontMetrics().horizontalAdvance(QStringLiteral("100%")));
    percentText_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    showPercent(percent_->value());
    lags_->setInteger(values_.lags);
    lagsUpDown_->setPosition(values_.lags);
    enableLags(values_.truncationMode == SpectralSettings::kLagsMode);

    auto* slider = new QHBoxLayout;
    slider->addWidget(new QLabel(QString::number(percent_->minimum()), box));
    slider->addWidget(percent_, 1);
    slider->addWidget(new QLabel(QString::number(percent_->maximum()), box));
    slider->addSpacing(8);
    slider->addWidget(percentText_);
    auto* lags = new QHBoxLayout;
    lags->addWidget(lagsButton);
    lags->addStretch();
    lags->addLayout(withUpDown(lags_, lagsUpDown_));
    auto* rows = new QVBoxLayout(box);
    rows->addWidget(percentButton);
    rows->addLayout(slider);
    rows->addSpacing(6);
    rows->addLayout(lags);

    connect(percent_, &QSlider::valueChanged, this, &CSpAnalDlg::showPercent);
    connect(mode_, &QButtonGroup::idClicked, this, &CSpAnalDlg::chooseMode);
    connect(lagsUpDown_, &CUpDown::aboutToMove, this, [this] {
        if (const std::optional<int> shown = lags_->integer()) {
            lagsUpDown_->setPosition(*shown);
        }
    });
    connect(lagsUpDown_, &CUpDown::moved, this,
            [this](int lags_shown) { lags_->setText(QString::number(lags_shown)); });
    return box;
}

void CSpAnalDlg::chooseMode(int mode) {
    percentFlag_ = mode == SpectralSettings::kPercentMode;
    enableLags(mode == SpectralSettings::kLagsMode);
    percent_->setEnabled(mode == SpectralSettings::kPercentMode);
}

void CSpAnalDlg::enableLags(bool on) {
    lags_->setEnabled(on);
    lagsUpDown_->setEnabled(on);
}

void CSpAnalDlg::showPercent(int percent) {
    percentText_->setText(QString::number(percent) + QLatin1Char('%'));
}

bool CSpAnalDlg::takeFields(FieldReader& reader) {
    SpectralDialogValues read = values_;
    read.windowButton = chosen(window_, values_.windowButton);
    read.unitButton = chosen(unit_, values_.unitButton);
    read.truncationMode = chosen(mode_, values_.truncationMode);
    read.percent = percent_->value();
    read.percentFlag = percentFlag_;
    reader.integer(lags_, read.lags).require(refusalOf(read), {{"percent", percent_}, {"lags", lags_}});
    if (!reader.good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan
