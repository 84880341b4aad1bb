#pragma once

#include <span>
#include <vector>

#include "analysis/Progress.h"
#include "analysis/kernels/KernelSet.h"

namespace vorlan {

/// Squared differences of N values for lags 0..lags-1, lags not above N:
///   sum[k] = sum over j = 0..N-k-1 of (d[j] - d[j + k])^2, j ascending.
///
/// Lanes are neighbouring lags, as in slidingProducts, each with a sum of its own in the order of j: the bytes are
/// those of the plain double loop. A zero beyond the end would add a square here, so the ends run lag by lag. Some
/// differences are formed as -1 * b + v in one fused operation: the product is exact, so it rounds as v - b does, and
/// a square does not know its sign.
std::vector<double> squaredDifferences(std::span<const double> values, std::size_t lags, Progress& progress,
                                       const KernelSet& kernels = kernelsInUse());

}  // namespace vorlan
