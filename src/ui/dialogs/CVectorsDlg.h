#pragma once

#include "model/StageSettings.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;

namespace vorlan {

class IntegerField;
class NumberField;

/// "Vectors of Mean Velocities | View Parameters".
class CVectorsDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CVectorsDlg(const VectorSettings& settings, QWidget* parent = nullptr);
    const VectorSettings& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    VectorSettings values_;
    QButtonGroup* plane_;
    IntegerField* pixels_;
    NumberField* speed_;
    NumberField* smaller_;
};

}  // namespace vorlan
