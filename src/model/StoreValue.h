#pragma once

#include <cstdint>
#include <limits>
#include <span>

namespace vorlan {

/// True when the integer part of v is a 32-bit integer.
inline bool fitsInt32(double v) {
    return v > -2147483649.0 && v < 2147483648.0;
}

/// The one conversion of a double into a stored integer: truncation toward zero. What a 32-bit integer cannot hold
/// (NaN included) gives the most negative integer, as the processor's own conversion does.
inline std::int32_t truncateToInt32(double v) {
    if (!fitsInt32(v)) {
        return std::numeric_limits<std::int32_t>::min();
    }
    return static_cast<std::int32_t>(v);
}

/// truncateToInt32(values[i] / scale) for every i; units has room for as many.
void truncateToUnits(std::span<const double> values, double scale, std::int32_t* units);

}  // namespace vorlan
