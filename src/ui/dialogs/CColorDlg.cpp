#include "ui/dialogs/CColorDlg.h"

namespace vorlan {

QColor platformColour(std::int32_t word) {
    const auto bits = static_cast<std::uint32_t>(word);
    return QColor(static_cast<int>(bits & 0xFF), static_cast<int>(bits >> 8 & 0xFF),
                  static_cast<int>(bits >> 16 & 0xFF));
}

std::int32_t colourWord(const QColor& colour) {
    return colour.red() + 256 * colour.green() + 65536 * colour.blue();
}

CColorDlg::CColorDlg(std::int32_t colour, QWidget* parent) : QColorDialog(platformColour(colour), parent) {}

std::optional<std::int32_t> pickColour(QWidget* parent, std::int32_t colour) {
    CColorDlg dialog(colour, parent);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.values()) : std::nullopt;
}

}  // namespace vorlan
