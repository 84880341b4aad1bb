#pragma once

#include <initializer_list>
#include <string_view>
#include <utility>

#include "model/Refusal.h"
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

    /// The fields by the names that refusals give them.
    using NamedFields = std::initializer_list<std::pair<std::string_view, QWidget*>>;
    /// A refusal with the stop icon; an empty one passes. Its field gets the focus when it is enabled.
    FieldReader& require(const Refusal& refusal, NamedFields fields,
                         QMessageBox::StandardButtons buttons = QMessageBox::Ok | QMessageBox::Cancel);

    bool good() const { return good_; }

  private:
    void refuse(const DialogMessage& message, QWidget* field);

    QWidget* dialog_;
    const MessageFunction& show_;
    bool good_ = true;
};

}  // namespace vorlan
