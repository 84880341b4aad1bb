#pragma once

#include <initializer_list>
#include <string>
#include <utility>

#include "ui/dialogs/DialogMessage.h"
#include "ui/dialogs/NumberFields.h"

namespace vorlan {

/// Reads the fields of a dialog in their order. The first refusal shows its message, gives the focus back to its field
/// and ends the reading: what follows is left alone.
///
/// A disabled field cannot be corrected, so it never refuses: what it holds is taken when it is acceptable, else the
/// value stays.
class FieldReader {
  public:
    FieldReader(QWidget* dialog, const MessageFunction& show) : dialog_(dialog), show_(show) {}

    FieldReader& number(NumberField* field, double& into);
    FieldReader& number(NumberField* field, double& into, double minimum, double maximum);
    FieldReader& integer(IntegerField* field, int& into);
    FieldReader& integer(IntegerField* field, int& into, int minimum, int maximum);

    /// A refusal with the stop icon; an empty text passes. The field gets the focus when there is one that is enabled.
    FieldReader& require(const std::string& refusal, QWidget* field,
                         QMessageBox::StandardButtons buttons = QMessageBox::Ok | QMessageBox::Cancel);

    bool good() const { return good_; }

  private:
    void refuse(const DialogMessage& message, QWidget* field);

    QWidget* dialog_;
    const MessageFunction& show_;
    bool good_ = true;
};

/// The field that a refusal speaks of, told by a word of its text; none when no word occurs.
QWidget* fieldNamedIn(const std::string& refusal, std::initializer_list<std::pair<const char*, QWidget*>> fields);

}  // namespace vorlan
