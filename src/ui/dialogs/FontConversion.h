#pragma once

#include <QFont>

#include "model/FontDescription.h"

namespace vorlan {

/// Height of the letters in points of a screen with 96 dots per inch.
double pointSize(const FontDescription& description);

/// Face, size and style in words: "ARIAL, 9 pt, bold italic".
QString fontText(const FontDescription& description);

/// The description after the user has picked a font in a dialog that opened on another one. Only what the user
/// changed is encoded again: family, letter height (stored negative, in pixels), weight, italic, underline and
/// strike-out; every other byte stays.
FontDescription pickedFont(const FontDescription& before, const QFont& opened, const QFont& picked);

}  // namespace vorlan
