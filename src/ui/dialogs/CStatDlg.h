#pragma once

#include "model/StageSettings.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;

namespace vorlan {

class IntegerField;

/// "Stationarity Analysis | Parameters".
class CStatDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CStatDlg(const StationaritySettings& settings, QWidget* parent = nullptr);
    const StationaritySettings& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    StationaritySettings values_;
    QButtonGroup* mode_;
    IntegerField* bands_;
};

}  // namespace vorlan
