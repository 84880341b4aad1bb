#include "ui/dialogs/CColorDlg.h"

#include "plot/PaintSeries.h"

namespace vorlan {

std::int32_t colourWord(const QColor& colour) {
    return colour.red() + 256 * colour.green() + 65536 * colour.blue();
}

CColorDlg::CColorDlg(std::int32_t colour, QWidget* parent) : QColorDialog(colourOf(colour), parent) {}

std::optional<std::int32_t> pickColour(QWidget* parent, std::int32_t colour) {
    CColorDlg dialog(colour, parent);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.values()) : std::nullopt;
}

}  // namespace vorlan
