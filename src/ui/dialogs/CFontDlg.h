#pragma once

#include <QFontDialog>
#include <functional>
#include <optional>

#include "model/FontDescription.h"

namespace vorlan {

/// The platform's font dialog on a stored font.
class CFontDlg : public QFontDialog {
  public:
    explicit CFontDlg(const FontDescription& font, QWidget* parent = nullptr);
    /// The stored font with what the user changed.
    FontDescription values() const;

  private:
    FontDescription before_;
    QFont opened_;
};

/// Asks for a font; nothing when the user cancels.
using FontPicker = std::function<std::optional<FontDescription>(QWidget* parent, const FontDescription& font)>;
std::optional<FontDescription> pickFont(QWidget* parent, const FontDescription& font);

}  // namespace vorlan
