#pragma once

#include <QDialog>

#include "ui/dialogs/DialogMessage.h"

class QVBoxLayout;

namespace vorlan {

class FieldReader;

/// What the parameter dialogs have in common: a column of groups above OK and Cancel, and an OK that reads and checks
/// the fields and stays open on a refusal.
class CParameterDialog : public QDialog {
    Q_OBJECT
  public:
    /// Replaces the message box of the refusals.
    void setMessageFunction(MessageFunction show) { show_ = std::move(show); }
    void accept() final;

  protected:
    CParameterDialog(const QString& title, QWidget* parent);

    /// Where the groups go, top to bottom.
    QVBoxLayout* body() const { return body_; }
    /// Adds OK and Cancel and gives the first field the focus. The last step of a constructor.
    void finish(QWidget* firstField);
    /// Reads the fields; keeps them as the dialog's values when none was refused.
    virtual bool takeFields(FieldReader& reader) = 0;
    const MessageFunction& messageFunction() const { return show_; }

  private:
    QVBoxLayout* rows_;
    QVBoxLayout* body_;
    MessageFunction show_ = showDialogMessage;
};

}  // namespace vorlan
