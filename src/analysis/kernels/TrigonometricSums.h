#pragma once

#include <span>
#include <vector>

#include "analysis/Progress.h"
#include "analysis/kernels/KernelSet.h"

namespace vorlan {

/// Cosine (sine) sums of several series of one size n for frequency indexes i = 0..frequencies-1:
///   sum[s][i] = sum over k = 0..n-1 of terms[s][k] * cos(kPi i k / length).
/// Give the terms that do not take part the value 0. InvalidArgument for series of different sizes or length 0.
///
/// Lanes are neighbouring frequencies. The lags go in ascending blocks of 128. Within a block the terms at the same
/// distance t before and behind the middle m are first added and subtracted, which no frequency takes part in; their
/// sums with cos(t) and sin(t) are formed for t ascending, and turned to the middle by
///   cos(m +- t) = cos m cos t -+ sin m sin t.
/// So two lags cost two products and two sums, and up to three series share the sines and cosines.
///
/// The cosines of indexes 0 and length are 1 and -1: sums of decimal values then end on a step of the stored
/// resolution, and rounding decides which integer it is. These two go over k in order.
///
/// The order of the operations is the same for all instruction sets and whatever series go together: they give the
/// same bytes. Against a plain loop over k the sums differ by rounding; what differs most is the phase, which is
/// accurate to 1e-15 here and loses up to a few 1e-12 where kPi * i * k is formed in double precision. Stored
/// spectra seldom differ, and by one unit.
std::vector<std::vector<double>> cosineSums(std::span<const std::vector<double>> terms, std::size_t length,
                                            std::size_t frequencies, Progress& progress,
                                            const KernelSet& kernels = kernelsInUse());
std::vector<std::vector<double>> sineSums(std::span<const std::vector<double>> terms, std::size_t length,
                                          std::size_t frequencies, Progress& progress,
                                          const KernelSet& kernels = kernelsInUse());

}  // namespace vorlan
