#pragma once

#include <iosfwd>

#include "export/ExportOptions.h"

namespace vorlan {

/// The histograms, one row per grade: the densities of U, V, W; with time values each behind the centre of its grade.
void writeHistograms(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

}  // namespace vorlan
