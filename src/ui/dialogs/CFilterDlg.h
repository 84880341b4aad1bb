#pragma once

#include "analysis/FilterSettings.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;

namespace vorlan {

class CUpDown;
class NumberField;

/// "Digital Filtration | Parameters". A click on a shape chooses its type and limits the types; at opening only the
/// band types and the cutoff follow the shape.
class CFilterDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CFilterDlg(const FilterSettings& settings, QWidget* parent = nullptr);
    const FilterSettings& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    QWidget* kernelBox();
    void chooseShape(int shape);

    FilterSettings values_;
    QButtonGroup* shape_;
    QButtonGroup* type_;
    NumberField* cutoff_ = nullptr;
    NumberField* halfWidth_ = nullptr;
    CUpDown* halfWidthUpDown_ = nullptr;
};

}  // namespace vorlan
