#pragma once

#include <array>

#include "analysis/RotationSettings.h"
#include "ui/dialogs/CParameterDialog.h"

class QCheckBox;

namespace vorlan {

class NumberField;

/// "Coordinate System". The angles can be typed while rotating is ticked; what they hold is returned either way.
class CCoordSysDlg : public CParameterDialog {
    Q_OBJECT
  public:
    /// The text names the coordinate system of the file.
    CCoordSysDlg(const RotationSettings& settings, const QString& coordinateSystem, QWidget* parent = nullptr);
    const RotationSettings& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    QWidget* angleBox();
    QWidget* positionBox();

    RotationSettings values_;
    QCheckBox* rotate_;
    NumberField* heading_ = nullptr;
    NumberField* pitch_ = nullptr;
    NumberField* roll_ = nullptr;
    std::array<NumberField*, 3> position_{};
};

}  // namespace vorlan
