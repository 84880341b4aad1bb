#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "analysis/Progress.h"
#include "analysis/kernels/KernelSet.h"

namespace vorlan {

/// Conditional average of a series around events, for lags -lag..lag (2 lag + 1 values, none for a negative lag):
///   p[i] = (sum over the events e of x[e + i - lag]) / (number of events with such a neighbour),
/// in the order of the events, which must rise and lie within the series; 0 where no event has one.
std::vector<double> averageAround(std::span<const std::size_t> events, std::span<const double> x, int lag,
                                  Progress& progress = noProgress(), const KernelSet& kernels = kernelsInUse());

}  // namespace vorlan
