#pragma once

#include <optional>

#include "app/CVorl_ADVDoc.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;

namespace vorlan {

class NumberField;

/// "Mean Velocity | Parameters". The current averaged velocity stands beside its button; the user's value is checked
/// only when it is the one to be used.
class CMeanVelDlg : public CParameterDialog {
    Q_OBJECT
  public:
    CMeanVelDlg(const MeanVelocitySettings& settings, std::optional<double> averaged, QWidget* parent = nullptr);
    const MeanVelocitySettings& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    MeanVelocitySettings values_;
    QButtonGroup* mode_;
    NumberField* value_;
};

}  // namespace vorlan
