#pragma once

#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;

namespace vorlan {

/// "Export Data": whether a table is written for the current probe or for the probes of all files.
class CExportScopeDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CExportScopeDlg(bool allProbes = false, QWidget* parent = nullptr);
    bool allProbes() const { return allProbes_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    bool allProbes_;
    QButtonGroup* scope_;
};

}  // namespace vorlan
