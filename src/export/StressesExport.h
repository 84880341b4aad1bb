#pragma once

#include <iosfwd>

#include "export/ExportOptions.h"

namespace vorlan {

/// The stress series u'v', u'w', v'w', (cm/s)^2 with three decimals, one row per sample that counts; with time values
/// the sample's index times the sampling interval before them. A probe without stresses gets them formed for the
/// export only. Without time values, rows between tabs have no line end.
void writeStresses(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

}  // namespace vorlan
