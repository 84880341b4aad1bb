#pragma once

#include <span>

#include "model/STimeSeries.h"

namespace vorlan {

/// The moments of N samples, every sum in index order:
///   mean = sum x / N, variance = sum d^2 / (N - 1), skewness = sum d^3 / (N variance sqrt(variance)),
///   kurtosis = sum d^4 / (N variance^2) - 3, with d = x - mean.
/// Nothing guards against short or constant series: their higher moments are not finite.
Moments momentsOf(std::span<const double> samples);

/// Deviations from mean, in index order.
std::vector<double> deviationsFrom(std::span<const double> samples, double mean);

/// Smallest and largest sample. InvalidArgument for an empty series.
struct Extremes {
    double minimum = 0.0;
    double maximum = 0.0;
};
Extremes extremesOf(const SArray& samples);

}  // namespace vorlan
