#pragma once

#include <QColorDialog>
#include <cstdint>
#include <functional>
#include <optional>

namespace vorlan {

/// The stored colour, red + 256 green + 65536 blue, of the platform's.
std::int32_t colourWord(const QColor& colour);

/// The platform's colour dialog on a stored colour.
class CColorDlg : public QColorDialog {
  public:
    explicit CColorDlg(std::int32_t colour, QWidget* parent = nullptr);
    std::int32_t values() const { return colourWord(currentColor()); }
};

/// Asks for a colour; nothing when the user cancels.
using ColourPicker = std::function<std::optional<std::int32_t>(QWidget* parent, std::int32_t colour)>;
std::optional<std::int32_t> pickColour(QWidget* parent, std::int32_t colour);

}  // namespace vorlan
