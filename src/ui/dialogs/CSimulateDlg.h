#pragma once

#include "analysis/Simulation.h"
#include "model/Index.h"
#include "ui/dialogs/CParameterDialog.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace vorlan {

class CUpDown;
class IntegerField;
class NumberField;

/// "Simulate Time Series | Parameters". One component and one harmonic are on the screen at a time. Choosing another
/// one stores the shown texts and shows the other's with two decimals; only what is shown when the dialog is accepted
/// is checked against its range.
class CSimulateDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CSimulateDlg(const SimulationParameters& parameters, QWidget* parent = nullptr);
    ~CSimulateDlg() override;
    const SimulationParameters& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    QWidget* recordBox();
    QWidget* compassBox();
    QWidget* componentBox();
    NumberField* addNumber(QGridLayout* grid, int row, const QString& text, double value, const char* unit,
                           const char* meaning, const Range& range);
    void showExact();
    void showComponent();
    void showHarmonic();
    bool storeShown();
    void chooseComponent(int component);
    void chooseHarmonic(int number);
    void limitHarmonics();
    SimulationParameters::Component& component() { return shown_.components[asSize(component_)]; }
    Harmonic& harmonic() { return component().harmonics[asSize(harmonic_)]; }

    SimulationParameters values_;
    SimulationParameters shown_;  ///< every component with all the harmonics that can be asked for
    int component_ = 0;
    int harmonic_ = 0;

    QLineEdit* fileName_ = nullptr;
    NumberField* interval_ = nullptr;
    NumberField* length_ = nullptr;
    NumberField* correlation_ = nullptr;
    NumberField* signalToNoise_ = nullptr;
    QCheckBox* compass_ = nullptr;
    NumberField* heading_ = nullptr;
    NumberField* pitch_ = nullptr;
    NumberField* roll_ = nullptr;
    QComboBox* componentList_ = nullptr;
    NumberField* meanVelocity_ = nullptr;
    QCheckBox* whiteNoise_ = nullptr;
    NumberField* noiseMean_ = nullptr;
    NumberField* noiseVariance_ = nullptr;
    IntegerField* harmonicCount_ = nullptr;
    QLabel* harmonicText_ = nullptr;
    CUpDown* harmonicUpDown_ = nullptr;
    NumberField* amplitude_ = nullptr;
    NumberField* period_ = nullptr;
    NumberField* phase_ = nullptr;
};

}  // namespace vorlan
