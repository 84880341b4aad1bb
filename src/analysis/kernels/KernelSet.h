#pragma once

#include <cstddef>
#include <cstdint>

#include "analysis/kernels/InstructionSet.h"

namespace vorlan {

/// Frequencies that one call of KernelSet::trigonometricSums works on.
inline constexpr std::size_t kFrequencyBlock = 16;
/// Lags of one block, half of them on either side of its middle.
inline constexpr std::size_t kPhaseSteps = 128;
/// Distances from a block's middle, 0 included.
inline constexpr std::size_t kFoldedSteps = kPhaseSteps / 2 + 1;
/// Series that share their cosines in one call.
inline constexpr std::size_t kSharedSeries = 3;

/// One phase of every frequency of a block.
struct alignas(64) PhaseRow {
    double cosine[kFrequencyBlock];
    double sine[kFrequencyBlock];
};

/// The circle in 2 L places: cosine and sine of pi m / L for m = 0..turn-1, and what the written constant of pi lacks
/// per unit of a product i k, divided by L.
struct PhaseCircle {
    struct Point {
        double cosine;
        double sine;
    };
    const Point* points;
    std::size_t turn;
    double lack;
};

/// The terms of one block of lags by their distance t from its middle m = b * kPhaseSteps + kPhaseSteps / 2:
/// a[m + t] + a[m - t] and a[m + t] - a[m - t], a[m] once, and beyond the block nothing.
struct FoldedTerms {
    double even[kFoldedSteps];
    double odd[kFoldedSteps];
};

/// Bands of one call of KernelSet::powerSums at most.
inline constexpr std::size_t kMostBands = 24;

/// Means of neighbouring bands and the sums of the powers of the deviations from them.
struct alignas(64) BandSums {
    double means[kMostBands];
    double squares[kMostBands];
    double cubes[kMostBands];
    double fourths[kMostBands];
};

/// A column as it is stored, and the mean that its deviations are from: d[i] = units[i] scale - mean.
struct UnitColumn {
    const std::int32_t* units;
    double scale;
    double mean;
};

/// Columns that are summed side by side.
inline constexpr std::size_t kSummedColumns = 3;

/// One sum of each of kSummedColumns columns.
struct ColumnSums {
    double of[kSummedColumns];
};

/// Phases of the distances 0..kPhaseSteps / 2 and of the middles of the blocks.
struct PhaseTables {
    const PhaseRow* steps;
    const PhaseRow* middles;
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

    /// sums[l] += x[events[e] - back + l] for e = 0..count-1 in order, l = 0..lags-1. Every such place lies in x; lags
    /// is a multiple of lanes.
    void (*eventSums)(const double* x, const std::size_t* events, std::size_t count, std::size_t back, std::size_t lags,
                      double* sums);

    std::size_t bands;  ///< that one call of powerSums works on
    /// squares[b] += d d, cubes[b] += (d d) d, fourths[b] += ((d d) d) d with d = x[i] - means[b] for i = 0..count-1 in
    /// order, b = 0..bands-1.
    void (*powerSums)(const double* x, std::size_t count, BandSums& sums);

    /// totals.of[c] += d for i = 0..count-1 in order, d the deviations of columns[c], c = 0..kSummedColumns-1.
    void (*columnTotals)(const UnitColumn* columns, std::size_t count, ColumnSums& totals);

    /// The same for three powers: powers[0].of[c] += d d, powers[1].of[c] += (d d) d, powers[2].of[c] += ((d d) d) d.
    void (*columnPowers)(const UnitColumn* columns, std::size_t count, ColumnSums* powers);

    /// units[i] = dx[i] dy[i] / resolution for i = 0..count-1, dx and dy the deviations of x and y, truncated as
    /// truncateToInt32() does. units lies apart from those of x and y.
    void (*unitProducts)(const UnitColumn& x, const UnitColumn& y, double resolution, std::size_t count,
                         std::int32_t* units);

    /// The phases of frequencies first..first+kFrequencyBlock-1 and lags start, start + stride, ... (rows of them).
    void (*phaseRows)(const PhaseCircle& circle, std::size_t first, std::size_t start, std::size_t stride,
                      std::size_t rows, PhaseRow* table);

    /// sums[s * kFrequencyBlock + f] = sum over all lags of term of series s * cosine (or sine) of frequency f and the
    /// lag, block by block, for series s = 0..series-1; series is 1..kSharedSeries.
    void (*cosineSums)(const FoldedTerms* const* terms, std::size_t series, std::size_t blocks,
                       const PhaseTables& phases, double* sums);
    void (*sineSums)(const FoldedTerms* const* terms, std::size_t series, std::size_t blocks, const PhaseTables& phases,
                     double* sums);
};

/// The kernels of a set that is available.
const KernelSet& kernelsOf(InstructionSet set);

/// The kernels in use: the best available, or those that the environment variable VORLAN_SIMD (plain, avx2, avx512)
/// names. Chosen at the first call.
const KernelSet& kernelsInUse();

}  // namespace vorlan
