#pragma once

#include <iosfwd>

#include "export/ExportOptions.h"

namespace vorlan {

/// The band moments, one row per band: means, variances, skewness and kurtosis, each of U, V, W; with time values the
/// time of the band before them.
void writeStationarity(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

}  // namespace vorlan
