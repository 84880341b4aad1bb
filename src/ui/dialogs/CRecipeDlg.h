#pragma once

#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;

namespace vorlan {

/// What a recipe that is about to run says of itself.
struct RecipeSummary {
    QString name;
    QStringList steps;  ///< one line each
    QString selected;   ///< the probes that it selects
    bool hasProbe = true;
};

/// "Run Recipe": the steps, and the probes that they are done to.
class CRecipeDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CRecipeDlg(const RecipeSummary& recipe, QWidget* parent = nullptr);
    /// On the active probe instead of those that the recipe selects.
    bool values() const { return onActiveProbe_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    bool onActiveProbe_ = true;
    QButtonGroup* probes_;
};

}  // namespace vorlan
