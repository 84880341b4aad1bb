#include "ui/dialogs/FieldReader.h"

#include <algorithm>
#include <limits>

#include "model/Text.h"

namespace vorlan {

namespace {

constexpr double kAnyNumber = std::numeric_limits<double>::infinity();

DialogMessage enterANumber(const std::string& text) {
    return {QMessageBox::Warning, QString::fromStdString(text), QMessageBox::Ok};
}

}  // namespace

FieldReader& FieldReader::number(NumberField* field, double& into) {
    return number(field, into, -kAnyNumber, kAnyNumber);
}

FieldReader& FieldReader::number(NumberField* field, double& into, double minimum, double maximum) {
    if (!good_) {
        return *this;
    }
    const std::optional<double> value = field->number();
    const bool anyNumber = minimum == -kAnyNumber;
    const bool inRange = value && (anyNumber || (*value >= minimum && *value <= maximum));
    if (inRange) {
        into = *value;
    } else if (field->isEnabled()) {
        refuse(enterANumber(value ? formatted("Please enter a number between %g and %g.", minimum, maximum)
                                  : "Please enter a number."),
               field);
    }
    return *this;
}

FieldReader& FieldReader::integer(IntegerField* field, int& into) {
    return integer(field, into, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
}

FieldReader& FieldReader::integer(IntegerField* field, int& into, int minimum, int maximum) {
    if (!good_) {
        return *this;
    }
    const std::optional<int> value = field->integer();
    if (value && *value >= minimum && *value <= maximum) {
        into = *value;
    } else if (field->isEnabled()) {
        refuse(enterANumber(value ? formatted("Please enter an integer between %d and %d.", minimum, maximum)
                                  : "Please enter an integer."),
               field);
    }
    return *this;
}

FieldReader& FieldReader::require(const Refusal& refusal, NamedFields fields, QMessageBox::StandardButtons buttons) {
    if (good_ && !refusal.empty()) {
        const auto* const named =
            std::find_if(fields.begin(), fields.end(), [&](const auto& field) { return field.first == refusal.field; });
        refuse({QMessageBox::Critical, QString::fromStdString(refusal.text), buttons},
               named != fields.end() ? named->second : nullptr);
    }
    return *this;
}

void FieldReader::refuse(const DialogMessage& message, QWidget* field) {
    good_ = false;
    show_(dialog_, message);
    if (field == nullptr || !field->isEnabled()) {
        return;
    }
    field->setFocus();
    if (auto* edit = qobject_cast<QLineEdit*>(field)) {
        edit->selectAll();
    }
}

}  // namespace vorlan
