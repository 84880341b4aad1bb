#pragma once

#include <iosfwd>

#include "export/ExportOptions.h"
#include "model/SAdvSet.h"

namespace vorlan {

/// Table of dissipation rate, integral scales, Kolmogorov's micro-scale and mean turbulent acceleration of one probe.
/// Without a positive dissipation rate it has no rows.
void writeScalesTable(std::ostream& stream, const ExportSource& source);

/// The same of every probe of every file, a block of rows each.
void writeScalesOfAll(std::ostream& stream, const SAdvSet& set);

}  // namespace vorlan
