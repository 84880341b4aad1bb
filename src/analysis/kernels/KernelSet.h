#pragma once

#include <cstddef>

#include "analysis/kernels/InstructionSet.h"

namespace vorlan {

/// Frequencies that one call of KernelSet::trigonometricSums works on.
inline constexpr std::size_t kFrequencyBlock = 16;
/// Lags between two accurate sines and cosines.
inline constexpr std::size_t kPhaseSteps = 64;
/// Series that share their cosines in one call.
inline constexpr std::size_t kSharedSeries = 3;

/// One phase of every frequency of a block.
struct alignas(64) PhaseRow {
    double cosine[kFrequencyBlock];
    double sine[kFrequencyBlock];
};

/// The phase of lag b * kPhaseSteps + t is the sum of two: of t, in steps[t], and of b * kPhaseSteps, in blocks[b].
struct PhaseTables {
    const PhaseRow* steps;
    const PhaseRow* blocks;
};

/// The inner loops, compiled for one instruction set. They work on sums that live in memory between calls, so that
/// a long sum can be cut into pieces: the order of its terms stays.
struct KernelSet {
    InstructionSet set;
    std::size_t lanes;    ///< doubles in a register
    std::size_t maxLags;  ///< neighbouring lags that one call works on; sums always has room for so many

    /// sums[l] += x[p + l mod lanes] * y[p - (l - l mod lanes)] for p = 0..steps-1 in order, l = 0..lags-1: with
    /// x and y moved to a first lag, the products of that and the following lags. More sums than lags may change.
    void (*slidingProducts)(const double* x, const double* y, std::size_t steps, std::size_t lags, double* sums);

    /// With a = l mod lanes: sums[l] += (d[p - firstLag - (l - a)] - d[p + a])^2 for p = first..last-1 in order, those
    /// terms left out that would read outside of d, which has size values. More sums than lags may change.
    void (*squaredDifferences)(const double* d, std::size_t size, std::size_t firstLag, std::size_t lags,
                               std::size_t first, std::size_t last, double* sums);

    /// sums[s * kFrequencyBlock + f] = sum over k = 0..count-1 of terms[s][k] * cosine (or sine) of frequency f and
    /// lag k, k ascending, for series s = 0..series-1; series is 1..kSharedSeries.
    void (*cosineSums)(const double* const* terms, std::size_t series, std::size_t count, const PhaseTables& phases,
                       double* sums);
    void (*sineSums)(const double* const* terms, std::size_t series, std::size_t count, const PhaseTables& phases,
                     double* sums);
};

/// The kernels of a set that is available.
const KernelSet& kernelsOf(InstructionSet set);

/// The kernels in use: the best available, or those that the environment variable VORLAN_SIMD (plain, avx2, avx512)
/// names. Chosen at the first call.
const KernelSet& kernelsInUse();

}  // namespace vorlan
