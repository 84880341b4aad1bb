#pragma once

#include <iosfwd>

#include "export/ExportOptions.h"

namespace vorlan {

/// The cross-spectral functions, one row per phase: for u'v', u'w', v'w' the squared amplitudes C^2 + Q^2, then the
/// coherences, then the phases; with time values lag time and frequency before them.
void writeCrossSpectral(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

}  // namespace vorlan
