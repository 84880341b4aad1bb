#pragma once

#include "export/ExportOptions.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;
class QCheckBox;

namespace vorlan {

/// "Export | as an ASCII file".
class CExportDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CExportDlg(const ExportOptions& options = {}, QWidget* parent = nullptr);
    const ExportOptions& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    ExportOptions values_;
    QCheckBox* header_;
    QCheckBox* time_;
    QButtonGroup* separator_;
};

}  // namespace vorlan
