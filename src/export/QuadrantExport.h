#pragma once

#include <iosfwd>

#include "export/ExportOptions.h"

namespace vorlan {

/// Contribution rates of quadrants 1..4 and the hole, one row per hole size; with time values the hole size first.
void writeContributions(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// Fractional times in the same shape.
void writeTimes(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// Averaged patterns, one row per lag, negative lags first: both components around the ejections, then around the
/// sweeps; with time values the lag first.
void writePatterns(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

}  // namespace vorlan
