#pragma once

#include "model/StageSettings.h"
#include "ui/dialogs/CParameterDialog.h"

class QCheckBox;
class QLabel;
class QSlider;

namespace vorlan {

class IntegerField;

/// "Univariate Distributions | Histogram Parameters". The up-down pair of the grades opens at 10 whatever the field
/// shows, and writes the field only when it is moved.
class CHistDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CHistDlg(const HistogramSettings& settings, QWidget* parent = nullptr);
    const HistogramSettings& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    void showBarWidth(int percent);

    HistogramSettings values_;
    IntegerField* grades_;
    QSlider* barWidth_;
    QLabel* barWidthText_;
    QCheckBox* normal_;
};

}  // namespace vorlan
