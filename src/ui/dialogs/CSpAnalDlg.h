#pragma once

#include "analysis/SpectralSettings.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;
class QLabel;
class QSlider;

namespace vorlan {

class CUpDown;
class IntegerField;

/// "Spectral Analysis | Parameters". The percent flag is on at opening; only a click on a mode button sets it.
class CSpAnalDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CSpAnalDlg(const SpectralSettings& settings, QWidget* parent = nullptr);
    const SpectralDialogValues& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    QWidget* truncationBox();
    void chooseMode(int mode);
    void enableLags(bool on);
    void showPercent(int percent);

    SpectralDialogValues values_;
    bool percentFlag_ = true;
    QButtonGroup* window_;
    QButtonGroup* unit_;
    QButtonGroup* mode_ = nullptr;
    QSlider* percent_ = nullptr;
    QLabel* percentText_ = nullptr;
    IntegerField* lags_ = nullptr;
    CUpDown* lagsUpDown_ = nullptr;
};

}  // namespace vorlan
