#pragma once

#include <QString>
#include <string>

namespace vorlan {

/// Text of the model for display: UTF-8 when the bytes are valid UTF-8, else Windows-1252.
QString displayText(const std::string& bytes);

/// What the model keeps for an edited text: the bytes it had when the text is still the one that was displayed, else
/// UTF-8.
std::string editedText(const QString& text, const std::string& before);

}  // namespace vorlan
