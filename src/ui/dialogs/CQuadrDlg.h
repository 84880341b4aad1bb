#pragma once

#include "model/StageSettings.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;

namespace vorlan {

class NumberField;

/// "Conditional Quadrants Analysis and Averaging".
class CQuadrDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CQuadrDlg(const QuadrantSettings& settings, QWidget* parent = nullptr);
    const QuadrantSettings& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    QWidget* holeBox();
    QWidget* averagingBox();
    QWidget* stressBox();
    NumberField* newField(double value);

    QuadrantSettings values_;
    NumberField* increment_ = nullptr;
    NumberField* maximum_ = nullptr;
    NumberField* ejection_ = nullptr;
    NumberField* sweep_ = nullptr;
    NumberField* lag_ = nullptr;
    QButtonGroup* stress_ = nullptr;
};

}  // namespace vorlan
