#include "ui/dialogs/CFontDlg.h"

#include <QFontInfo>

#include "plot/QtText.h"
#include "ui/dialogs/FontConversion.h"

namespace vorlan {

CFontDlg::CFontDlg(const FontDescription& font, QWidget* parent) : QFontDialog(parent), before_(font) {
    // A family that is not installed opens on the one that is drawn in its place.
    QFont shown = qtFont(font, 1.0);
    shown.setFamily(QFontInfo(shown).family());
    shown.setPointSizeF(pointSize(font));
    setCurrentFont(shown);
    // The dialog settles on an installed family and a whole point size: those are no choice of the user.
    opened_ = currentFont();
}

FontDescription CFontDlg::values() const {
    return pickedFont(before_, opened_, currentFont());
}

std::optional<FontDescription> pickFont(QWidget* parent, const FontDescription& font) {
    CFontDlg dialog(font, parent);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.values()) : std::nullopt;
}

}  // namespace vorlan
