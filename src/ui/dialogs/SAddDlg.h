#pragma once

#include <array>

#include "app/CVorl_ADVDoc.h"
#include "ui/dialogs/CParameterDialog.h"

namespace vorlan {

class NumberField;

/// "Grid and Boundaries Editor | Add Node".
class SAddDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit SAddDlg(QWidget* parent = nullptr);
    /// Metres.
    const Position& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    Position values_{};
    std::array<NumberField*, 3> fields_{};
};

}  // namespace vorlan
