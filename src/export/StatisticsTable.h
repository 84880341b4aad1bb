#pragma once

#include <iosfwd>

#include "export/ExportOptions.h"
#include "model/SAdvSet.h"

namespace vorlan {

/// Table of the velocity moments of one probe, computed from its working samples that count.
void writeStatisticsTable(std::ostream& stream, const ExportSource& source);

/// The moments of every probe of every file, a block of rows each.
void writeStatisticsOfAll(std::ostream& stream, const SAdvSet& set);

/// Table of the moments of the stresses of one probe; a probe without stresses gets them formed for the export only.
void writeStressStatisticsTable(std::ostream& stream, const ExportSource& source);

}  // namespace vorlan
