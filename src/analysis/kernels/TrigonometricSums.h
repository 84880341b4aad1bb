#pragma once

#include <span>
#include <vector>

#include "analysis/Progress.h"
#include "analysis/kernels/KernelSet.h"

namespace vorlan {

/// Cosine (sine) sums of several series of one size n for frequency indexes i = 0..frequencies-1:
///   sum[s][i] = sum over k = 0..n-1 of terms[s][k] * cos(kPi i k / length), k ascending.
/// Give the terms that do not take part the value 0. InvalidArgument for series of different sizes or length 0.
///
/// Lanes are neighbouring frequencies, so every sum has its own order. A cosine is formed by angle addition from two
/// small tables and shared by up to three series; its error stays below 1e-15, that of the phase formed in double
/// precision is up to thousands of times larger. All instruction sets do the same operations and give the same bytes.
std::vector<std::vector<double>> cosineSums(std::span<const std::vector<double>> terms, std::size_t length,
                                            std::size_t frequencies, Progress& progress,
                                            const KernelSet& kernels = kernelsInUse());
std::vector<std::vector<double>> sineSums(std::span<const std::vector<double>> terms, std::size_t length,
                                          std::size_t frequencies, Progress& progress,
                                          const KernelSet& kernels = kernelsInUse());

}  // namespace vorlan
