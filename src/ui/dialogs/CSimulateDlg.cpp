#include "ui/dialogs/CSimulateDlg.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSignalBlocker>

#include "model/Index.h"
#include "ui/dialogs/CUpDown.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"
#include "ui/dialogs/NumberText.h"
#include "ui/dialogs/RawText.h"

namespace vorlan {

using namespace simulation_range;

namespace {

FieldReader& inRange(FieldReader& reader, NumberField* field, double& into, const Range& range) {
    return reader.number(field, into, range.minimum, range.maximum);
}

// While a dialog is open every harmonic that can be asked for exists, so that lowering and raising their number
// loses nothing.
SimulationParameters withAllHarmonics(SimulationParameters parameters) {
    for (SimulationParameters::Component& component : parameters.components) {
        component.harmonics.resize(kMaximumHarmonics);
    }
    return parameters;
}

}  // namespace

CSimulateDlg::CSimulateDlg(const SimulationParameters& parameters, QWidget* parent)
    : CParameterDialog(QStringLiteral("Simulate Time Series | Parameters"), parent),
      values_(parameters),
      shown_(withAllHarmonics(parameters)) {
    auto* left = new QVBoxLayout;
    left->addWidget(recordBox());
    left->addWidget(compassBox());
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addWidget(componentBox());
    body()->addLayout(columns);
    showExact();
    finish(fileName_);

    connect(componentList_, &QComboBox::currentIndexChanged, this, &CSimulateDlg::chooseComponent);
    connect(harmonicUpDown_, &CUpDown::aboutToMove, this, &CSimulateDlg::limitHarmonics);
    connect(harmonicUpDown_, &CUpDown::moved, this, &CSimulateDlg::chooseHarmonic);
    connect(harmonicCount_, &QLineEdit::editingFinished, this, &CSimulateDlg::limitHarmonics);
}

CSimulateDlg::~CSimulateDlg() {
    // A field that loses the focus while the window goes away still tells that its editing is finished.
    harmonicCount_->disconnect(this);
}

NumberField* CSimulateDlg::addNumber(QGridLayout* grid, int row, const QString& text, double value, const char* unit,
                                     const char* meaning, const Range& range) {
    auto* field = new NumberField(this);
    field->setNumber(value);
    field->setToolTip(fieldTip(meaning, unit, range));
    addField(grid, row, 0, text, field, QString::fromLatin1(unit));
    return field;
}

QWidget* CSimulateDlg::recordBox() {
    auto* box = new QGroupBox(QStringLiteral("Record"), this);
    auto* grid = new QGridLayout(box);
    fileName_ = new QLineEdit(displayText(values_.fileName), this);
    addField(grid, 0, 0, QStringLiteral("&File Name:"), fileName_);
    grid->addWidget(fileName_, 0, 1, 1, 2);
    fileName_->setToolTip(fieldTip("Name of the data file that is made"));
    interval_ = addNumber(grid, 1, QStringLiteral("&Sampling Interval:"), values_.samplingInterval, "s",
                          "Time from sample to sample", kInterval);
    length_ = addNumber(grid, 2, QStringLiteral("Time Series &Length:"), values_.length, "s",
                        "Length of the record: at least two samples", kLength);
    correlation_ = addNumber(grid, 3, QStringLiteral("&Correlation Value:"), values_.correlation, "%",
                             "Mean correlation score of the beams", kCorrelation);
    signalToNoise_ = addNumber(grid, 4, QStringLiteral("Signal to Noise &Ratio:"), values_.signalToNoise, "dB",
                               "Mean signal to noise ratio of the beams", kSignalToNoise);
    reserveUnit(grid, QStringLiteral("deg"));
    return box;
}

QWidget* CSimulateDlg::compassBox() {
    auto* box = new QGroupBox(this);
    auto* grid = new QGridLayout(box);
    compass_ = new QCheckBox(QStringLiteral("C&ompass and Tilt:"), this);
    compass_->setChecked(values_.compass);
    grid->addWidget(compass_, 0, 0, 1, 3);
    compass_->setToolTip(fieldTip("The record gets a compass with the angles below"));
    heading_ = addNumber(grid, 1, QStringLiteral("H&eading:"), values_.heading, "deg",
                         "Mean heading; every sample lies around it", kHeading);
    pitch_ = addNumber(grid, 2, QStringLiteral("P&itch:"), values_.pitch, "deg",
                       "Mean pitch; every sample lies around it", kTilt);
    roll_ = addNumber(grid, 3, QStringLiteral("&Roll:"), values_.roll, "deg", "Mean roll; every sample lies around it",
                      kTilt);
    reserveUnit(grid, QStringLiteral("deg"));
    for (NumberField* field : {heading_, pitch_, roll_}) {
        field->setEnabled(values_.compass);
        connect(compass_, &QCheckBox::toggled, field, &QWidget::setEnabled);
    }
    return box;
}

QWidget* CSimulateDlg::componentBox() {
    auto* box = new QGroupBox(QStringLiteral("Velocities"), this);
    auto* grid = new QGridLayout(box);
    componentList_ = new QComboBox(this);
    componentList_->addItems({QStringLiteral("U"), QStringLiteral("V"), QStringLiteral("W")});
    addField(grid, 0, 0, QStringLiteral("Componen&t:"), componentList_);
    componentList_->setToolTip(fieldTip("The component whose values are shown here"));
    meanVelocity_ =
        addNumber(grid, 1, QStringLiteral("&Mean Velocities:"), 0.0, "cm/s", "Mean of the component", kVelocity);
    whiteNoise_ = new QCheckBox(QStringLiteral("&White Noise:"), this);
    whiteNoise_->setChecked(values_.whiteNoise);
    grid->addWidget(whiteNoise_, 2, 0, 1, 3);
    whiteNoise_->setToolTip(fieldTip("Adds normally distributed noise to all components"));
    noiseMean_ = addNumber(grid, 3, QStringLiteral("Mea&n:"), 0.0, "cm/s", "Mean of the noise", kVelocity);
    noiseVariance_ = addNumber(grid, 4, QStringLiteral("&Variance:"), 0.0, "(cm/s)^2",
                               "Strength of the noise; used as its standard deviation", {});
    for (NumberField* field : {noiseMean_, noiseVariance_}) {
        field->setEnabled(values_.whiteNoise);
        connect(whiteNoise_, &QCheckBox::toggled, field, &QWidget::setEnabled);
    }
    harmonicCount_ = new IntegerField(this);
    harmonicCount_->setInteger(values_.harmonicCount);
    harmonicCount_->setToolTip(fieldTip("Number of waves of every component", "", kHarmonics));
    addField(grid, 5, 0, QStringLiteral("&Harmonics Number:"), harmonicCount_);
    harmonicText_ = new QLabel(this);
    harmonicUpDown_ = new CUpDown(1, values_.harmonicCount, nullptr, this);
    harmonicUpDown_->setToolTip(fieldTip("The wave whose values are shown below"));
    grid->addWidget(harmonicText_, 6, 0);
    grid->addWidget(harmonicUpDown_, 6, 1);
    amplitude_ = addNumber(grid, 7, QStringLiteral("&Amplitude:"), 0.0, "cm/s", "Amplitude of the wave", kAmplitude);
    period_ = addNumber(grid, 8, QStringLiteral("Perio&d:"), 0.0, "s", "Period of the wave", kPeriod);
    phase_ = addNumber(grid, 9, QStringLiteral("&Phase:"), 0.0, "deg", "Phase of the wave at the start", kPhase);
    reserveUnit(grid, QStringLiteral("(cm/s)^2"));
    return box;
}

void CSimulateDlg::showExact() {
    meanVelocity_->setNumber(component().meanVelocity);
    noiseMean_->setNumber(component().noiseMean);
    noiseVariance_->setNumber(component().noiseVariance);
    amplitude_->setNumber(harmonic().amplitude);
    period_->setNumber(harmonic().period);
    phase_->setNumber(harmonic().phase);
    harmonicText_->setText(QStringLiteral("Harmonic # %1").arg(harmonic_ + 1));
}

void CSimulateDlg::showComponent() {
    meanVelocity_->setText(twoDecimals(component().meanVelocity));
    noiseMean_->setText(twoDecimals(component().noiseMean));
    noiseVariance_->setText(twoDecimals(component().noiseVariance));
    showHarmonic();
}

void CSimulateDlg::showHarmonic() {
    amplitude_->setText(twoDecimals(harmonic().amplitude));
    period_->setText(twoDecimals(harmonic().period));
    phase_->setText(twoDecimals(harmonic().phase));
    harmonicText_->setText(QStringLiteral("Harmonic # %1").arg(harmonic_ + 1));
}

bool CSimulateDlg::storeShown() {
    FieldReader reader(this, messageFunction());
    return reader.number(meanVelocity_, component().meanVelocity)
        .number(noiseMean_, component().noiseMean)
        .number(noiseVariance_, component().noiseVariance)
        .number(amplitude_, harmonic().amplitude)
        .number(period_, harmonic().period)
        .number(phase_, harmonic().phase)
        .good();
}

void CSimulateDlg::chooseComponent(int chosenComponent) {
    if (storeShown()) {
        component_ = chosenComponent;
        showComponent();
        return;
    }
    const QSignalBlocker quiet(componentList_);
    componentList_->setCurrentIndex(component_);
}

void CSimulateDlg::chooseHarmonic(int number) {
    if (storeShown()) {
        harmonic_ = number - 1;
        showHarmonic();
    }
    harmonicUpDown_->setPosition(harmonic_ + 1);
}

void CSimulateDlg::limitHarmonics() {
    const std::optional<int> count = harmonicCount_->integer();
    if (!count || !kHarmonics.holds(*count)) {
        return;
    }
    harmonicUpDown_->setRange(1, *count);
    if (harmonic_ < *count) {
        return;
    }
    // The shown harmonic is beyond the new number. What it holds comes back when the number is raised again.
    harmonic().amplitude = amplitude_->number().value_or(harmonic().amplitude);
    harmonic().period = period_->number().value_or(harmonic().period);
    harmonic().phase = phase_->number().value_or(harmonic().phase);
    harmonic_ = harmonicUpDown_->position() - 1;
    showHarmonic();
}

bool CSimulateDlg::takeFields(FieldReader& reader) {
    limitHarmonics();
    SimulationParameters read = shown_;
    SimulationParameters::Component& velocity = read.components[asSize(component_)];
    Harmonic& wave = velocity.harmonics[asSize(harmonic_)];
    read.fileName = editedText(fileName_->text(), values_.fileName);
    read.compass = compass_->isChecked();
    read.whiteNoise = whiteNoise_->isChecked();

    inRange(reader, interval_, read.samplingInterval, kInterval);
    inRange(reader, length_, read.length, kLength);
    inRange(reader, correlation_, read.correlation, kCorrelation);
    inRange(reader, signalToNoise_, read.signalToNoise, kSignalToNoise);
    inRange(reader, heading_, read.heading, kHeading);
    inRange(reader, pitch_, read.pitch, kTilt);
    inRange(reader, roll_, read.roll, kTilt);
    inRange(reader, meanVelocity_, velocity.meanVelocity, kVelocity);
    inRange(reader, noiseMean_, velocity.noiseMean, kVelocity);
    reader.number(noiseVariance_, velocity.noiseVariance);
    reader.integer(harmonicCount_, read.harmonicCount, 1, kMaximumHarmonics);
    inRange(reader, amplitude_, wave.amplitude, kAmplitude);
    inRange(reader, period_, wave.period, kPeriod);
    inRange(reader, phase_, wave.phase, kPhase);
    if (!reader.good()) {
        return false;
    }
    for (SimulationParameters::Component& component : read.components) {
        component.harmonics.resize(asSize(read.harmonicCount));
    }
    values_ = read;
    return true;
}

}  // namespace vorlan
