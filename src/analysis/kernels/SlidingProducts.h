#pragma once

#include <span>
#include <vector>

#include "analysis/Progress.h"
#include "analysis/kernels/KernelSet.h"

namespace vorlan {

/// Dot products of y with x moved by 0..lags-1:
///   sum[k] = sum over j = 0..size(y)-1 of x[j + k] * y[j], j ascending, x being 0 beyond its end.
/// An autocovariance has y = x; a cross-covariance its two series; a digital filter has its taps for y and its
/// outputs for lags. To leave a last product out, shorten x.
///
/// Lanes are neighbouring lags. A register of neighbouring x is multiplied with several single y, each giving its
/// products to lags of its own: every lag has a sum of its own whose terms come in the order of j, so the bytes are
/// those of the plain double loop. Zeros before and after the series make the ends regular: adding a zero of either
/// sign changes no sum that started as +0. The values must be finite.
std::vector<double> slidingProducts(std::span<const double> x, std::span<const double> y, std::size_t lags,
                                    Progress& progress, const KernelSet& kernels = kernelsInUse());

}  // namespace vorlan
