#pragma once

#include <array>
#include <span>

#include "analysis/Progress.h"
#include "model/STimeSeries.h"

namespace vorlan {

/// The moments of N samples, every sum in index order:
///   mean = sum x / N, variance = sum d^2 / (N - 1), skewness = sum d^3 / (N variance sqrt(variance)),
///   kurtosis = sum d^4 / (N variance^2) - 3, with d = x - mean.
/// Nothing guards against short or constant series: their higher moments are not finite.
Moments momentsOf(std::span<const double> samples);

/// Sums of the powers of deviations.
struct PowerSums {
    double squares = 0.0;
    double cubes = 0.0;
    double fourths = 0.0;

    void add(double d) {
        squares += d * d;
        cubes += d * d * d;
        fourths += d * d * d * d;
    }
};

/// Samples of a column, as far as they take part: integers and their resolution.
struct ColumnSamples {
    std::span<const std::int32_t> units;
    double scale = 1.0;

    static ColumnSamples of(const SArray& column) { return {column.view(), column.GetScale()}; }
};

/// Three columns at once, of any sizes: means, or all moments, each as momentsOf() gives them. The sums of one column
/// need not wait for those of another, and no column is turned into doubles in memory.
using ThreeColumns = std::array<ColumnSamples, 3>;
std::array<double, 3> columnMeans(const ThreeColumns& columns, Progress& progress = noProgress());
std::array<Moments, 3> columnMoments(const ThreeColumns& columns, Progress& progress = noProgress());

/// Deviations from mean, in index order.
std::vector<double> deviationsFrom(std::span<const double> samples, double mean);

/// Smallest and largest of some integers; there must be one.
struct UnitRange {
    std::int32_t lowest;
    std::int32_t highest;
};
UnitRange unitRange(std::span<const std::int32_t> units);

/// Smallest and largest sample. InvalidArgument for an empty series.
struct Extremes {
    double minimum = 0.0;
    double maximum = 0.0;
};
Extremes extremesOf(const SArray& samples);

}  // namespace vorlan
