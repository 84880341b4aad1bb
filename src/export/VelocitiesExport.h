#pragma once

#include <iosfwd>

#include "export/ExportOptions.h"

namespace vorlan {

/// The working velocities, one row per sample that counts: U, V, W in cm/s with two decimals; with time values the
/// sample's index times the sampling interval before them.
void writeVelocities(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

}  // namespace vorlan
