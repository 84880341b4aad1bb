#include "ui/dialogs/RawText.h"

#include "model/Text.h"

namespace vorlan {

QString displayText(const std::string& bytes) {
    return QString::fromStdString(utf8Text(bytes));
}

std::string editedText(const QString& text, const std::string& before) {
    return text == displayText(before) ? before : text.toStdString();
}

}  // namespace vorlan
