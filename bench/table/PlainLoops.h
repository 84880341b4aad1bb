#pragma once

#include <cstdint>
#include <span>
#include <vector>

// The definitions as plain loops over doubles, in index order: what the kernels are compared with.

namespace bench::plain {

using Values = std::vector<double>;

/// Noise with a slow wave, some tens of cm/s, in hundredths.
Values record(std::size_t size, std::uint32_t seed);
/// Functions that fade like covariances.
std::vector<Values> fadingFunctions(std::size_t count, std::size_t lags);

/// sum over j of x[j + k] y[j] for k = first, first + stride, ... below lags; j < size(y), j + k < size(x).
Values products(std::span<const double> x, std::span<const double> y, std::size_t first, std::size_t lags,
                std::size_t stride);
/// sum over j of (d[j] - d[j + k])^2.
Values squaredDifferences(std::span<const double> d, std::size_t first, std::size_t lags, std::size_t stride);
/// sum over k = 1..size-1 of terms[k] cos (or sin) (pi i k / length) for i = 0..frequencies-1.
Values cosines(const Values& terms, std::size_t length, std::size_t frequencies);
Values sines(const Values& terms, std::size_t length, std::size_t frequencies);

/// sum of n * scale of every column in order: one reading of the columns that waits for every addition.
double readOnce(const std::vector<std::span<const std::int32_t>>& columns, double scale);

}  // namespace bench::plain
