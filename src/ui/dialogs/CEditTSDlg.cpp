#include "ui/dialogs/CEditTSDlg.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QStyle>

#include "model/Index.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"

namespace vorlan {

namespace {

const QString kLongestUnit = QStringLiteral("Sigma Vx,y,z");

// What belongs to a check box stands under its text.
int indentOf(const QWidget& dialog) {
    return dialog.style()->pixelMetric(QStyle::PM_IndicatorWidth) + 6;
}

}  // namespace

CEditTSDlg::CEditTSDlg(const EditingSettings& settings, QWidget* parent)
    : CParameterDialog(QStringLiteral("Editing Time Series"), parent), values_(settings) {
    auto* criteria = new QGroupBox(QStringLiteral("Criterea to identify the bad samples:"), this);
    auto* column = new QVBoxLayout(criteria);
    correlation_ = addScoreTest(column, QStringLiteral("&Correlation Score Threshold:"),
                                {QStringLiteral("&Average Correlation:"), QStringLiteral("&Minimum Correlation:")},
                                QStringLiteral("%"), values_.correlation);
    column->addSpacing(6);
    signalToNoise_ = addScoreTest(column, QStringLiteral("&Signal to Noise Ratio Threshold:"),
                                  {QStringLiteral("A&verage SNR value:"), QStringLiteral("Minimum S&NR value:")},
                                  QStringLiteral("dB"), values_.signalToNoise);
    column->addSpacing(6);
    addSpikeFilter(column);
    column->addSpacing(6);
    addVelocityTest(column);
    treatment_ = radioButtons({QStringLiteral("&Interpolate linearly between neighbouring (i-1, i+1) samples"),
                               QStringLiteral("&Remove bad sample from the time series")},
                              asInt(settings.treatment), this);
    body()->addWidget(criteria);
    QGroupBox* treatments = radioBox(QStringLiteral("Bad  samples  treatment:"), treatment_);
    explain(values_, values_.treatment, {treatments});
    body()->addWidget(treatments);
    finish(correlation_.on);
}

CEditTSDlg::ScoreControls CEditTSDlg::addScoreTest(QVBoxLayout* column, const QString& title,
                                                   const QStringList& statistics, const QString& unit,
                                                   const ScoreTest& test) {
    ScoreControls controls;
    controls.on = new QCheckBox(title, this);
    controls.on->setChecked(test.on);
    controls.on->setToolTip(QStringLiteral("Tests the scores of the samples"));
    controls.statistic = new QButtonGroup(this);
    auto* grid = new QGridLayout;
    grid->setContentsMargins(indentOf(*this), 0, 0, 0);
    const auto addStatistic = [&](ScoreStatistic statistic, double threshold) {
        const int row = asInt(statistic);
        auto* button = new QRadioButton(statistics[row], this);
        button->setChecked(test.statistic == statistic);
        controls.statistic->addButton(button, row);
        auto* field = new NumberField(this);
        field->setNumber(threshold);
        explain(values_, test.statistic, {button});
        field->setToolTip(QStringLiteral("Samples with a lower score are bad (%1)").arg(unit));
        grid->addWidget(button, row, 0);
        grid->addWidget(field, row, 1);
        grid->addWidget(new QLabel(unit, this), row, 2);
        return field;
    };
    controls.average = addStatistic(ScoreStatistic::Average, test.averageThreshold);
    controls.minimum = addStatistic(ScoreStatistic::Minimum, test.minimumThreshold);
    reserveUnit(grid, kLongestUnit);
    controls.enable();
    connect(controls.on, &QCheckBox::toggled, this, [controls] { controls.enable(); });
    connect(controls.statistic, &QButtonGroup::idToggled, this, [controls] { controls.enable(); });
    column->addWidget(controls.on);
    column->addLayout(grid);
    return controls;
}

void CEditTSDlg::ScoreControls::enable() const {
    const bool minimumChosen = statistic->checkedId() == asInt(ScoreStatistic::Minimum);
    average->setEnabled(on->isChecked() && !minimumChosen);
    minimum->setEnabled(on->isChecked() && minimumChosen);
}

void CEditTSDlg::ScoreControls::read(FieldReader& reader, ScoreTest& test) const {
    test.on = on->isChecked();
    test.statistic = static_cast<ScoreStatistic>(chosen(statistic, asInt(test.statistic)));
    reader.number(average, test.averageThreshold).number(minimum, test.minimumThreshold);
}

void CEditTSDlg::addSpikeFilter(QVBoxLayout* column) {
    spikeFilter_ = new QCheckBox(QStringLiteral("Spike &Filter:"), this);
    spikeFilter_->setChecked(values_.spikeFilter);
    acceleration_ = new NumberField(this);
    acceleration_->setNumber(values_.accelerationThreshold);
    explain(values_, values_.accelerationThreshold, {spikeFilter_, acceleration_});
    acceleration_->setEnabled(values_.spikeFilter);
    connect(spikeFilter_, &QCheckBox::toggled, acceleration_, &QWidget::setEnabled);
    auto* grid = new QGridLayout;
    grid->setContentsMargins(indentOf(*this), 0, 0, 0);
    addField(grid, 0, 0, QStringLiteral("Acceleration &Threshold:"), acceleration_, QStringLiteral("g"));
    reserveUnit(grid, kLongestUnit);
    column->addWidget(spikeFilter_);
    column->addLayout(grid);
}

void CEditTSDlg::addVelocityTest(QVBoxLayout* column) {
    velocityTest_ = new QCheckBox(QStringLiteral("&Velocity Threshold:"), this);
    velocityTest_->setChecked(values_.velocityTest);
    velocity_ = new NumberField(this);
    velocity_->setNumber(values_.velocityThreshold);
    explain(values_, values_.velocityThreshold, {velocityTest_, velocity_});
    velocity_->setEnabled(values_.velocityTest);
    connect(velocityTest_, &QCheckBox::toggled, velocity_, &QWidget::setEnabled);
    auto* grid = new QGridLayout;
    grid->setContentsMargins(indentOf(*this), 0, 0, 0);
    addField(grid, 0, 0, QStringLiteral("Clean up | Vx,y,z |  > "), velocity_, kLongestUnit);
    reserveUnit(grid, kLongestUnit);
    column->addWidget(velocityTest_);
    column->addLayout(grid);
}

bool CEditTSDlg::takeFields(FieldReader& reader) {
    EditingSettings read = values_;
    correlation_.read(reader, read.correlation);
    signalToNoise_.read(reader, read.signalToNoise);
    read.spikeFilter = spikeFilter_->isChecked();
    read.velocityTest = velocityTest_->isChecked();
    read.treatment = static_cast<BadSampleTreatment>(chosen(treatment_, asInt(values_.treatment)));
    reader.number(acceleration_, read.accelerationThreshold).number(velocity_, read.velocityThreshold);
    if (!reader.good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan
