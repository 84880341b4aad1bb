#pragma once

#include <iosfwd>

#include "export/ExportOptions.h"

namespace vorlan {

/// The spectral functions, one row per lag: for U, V, W in turn the correlation divided by the variance of the series,
/// the spectrum and the structure function. With time values lag time and frequency come first; then, and only between
/// blanks, the spectra have seven decimals instead of four.
void writeSpectral(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

}  // namespace vorlan
