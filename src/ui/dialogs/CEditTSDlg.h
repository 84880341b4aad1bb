#pragma once

#include "model/StageSettings.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;
class QCheckBox;
class QVBoxLayout;

namespace vorlan {

class NumberField;

/// "Editing Time Series". A threshold can be typed while its test is ticked and its statistic is chosen.
class CEditTSDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CEditTSDlg(const EditingSettings& settings, QWidget* parent = nullptr);
    const EditingSettings& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    /// The controls of one test of the beam scores.
    struct ScoreControls {
        QCheckBox* on = nullptr;
        QButtonGroup* statistic = nullptr;
        NumberField* average = nullptr;
        NumberField* minimum = nullptr;

        void enable() const;
        void read(FieldReader& reader, ScoreTest& test) const;
    };

    ScoreControls addScoreTest(QVBoxLayout* column, const QString& title, const QStringList& statistics,
                               const QString& unit, const ScoreTest& test);
    void addSpikeFilter(QVBoxLayout* column);
    void addVelocityTest(QVBoxLayout* column);

    EditingSettings values_;
    ScoreControls correlation_;
    ScoreControls signalToNoise_;
    QCheckBox* spikeFilter_ = nullptr;
    NumberField* acceleration_ = nullptr;
    QCheckBox* velocityTest_ = nullptr;
    NumberField* velocity_ = nullptr;
    QButtonGroup* treatment_ = nullptr;
};

}  // namespace vorlan
