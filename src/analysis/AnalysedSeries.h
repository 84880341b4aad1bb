#pragma once

#include "model/SAdvProbe.h"

namespace vorlan {

/// Fills seriesU, seriesV and seriesW with the working samples that count (integers copied, resolution taken from the
/// working columns) and gives them the probe's sampling interval. The three always have one length.
void formAnalysedSeries(SAdvProbe& probe);

/// Number of working samples that count: the length that the analysed series take.
int countedSamples(const SAdvProbe& probe);

/// The parts of three columns that count by the probe's marks: integers copied, resolution kept; an empty column for a
/// null pointer.
std::array<SArray, 3> countedColumns(const SAdvProbe& probe, const std::array<const SArray*, 3>& columns);

}  // namespace vorlan
