#pragma once

#include "analysis/kernels/UnitColumnLoads.h"

namespace vorlan {
namespace {

inline Four deviations(const UnitColumn& column, std::size_t i) {
    return asDoubles(loadUnits(column.units + i)) * column.scale - column.mean;
}

/// Truncation toward zero; the most negative integer for what does not fit. The processor's conversion does just that.
inline FourUnits truncated(Four v) {
#if defined(__AVX__)
    return reinterpret_cast<FourUnits>(_mm256_cvttpd_epi32(v));
#elif defined(__SSE2__)
    const __m128i low = _mm_cvttpd_epi32(__m128d{v[0], v[1]});
    const __m128i high = _mm_cvttpd_epi32(__m128d{v[2], v[3]});
    return reinterpret_cast<FourUnits>(_mm_unpacklo_epi64(low, high));
#else
    FourUnits units;
    for (int lane = 0; lane < 4; ++lane) {
        const bool fits = v[lane] > -2147483649.0 && v[lane] < 2147483648.0;
        units[lane] = fits ? static_cast<std::int32_t>(v[lane]) : -2147483647 - 1;
    }
    return units;
#endif
}

void unitProductsLoop(const UnitColumn& x, const UnitColumn& y, double resolution, std::size_t count,
                      std::int32_t* units) {
    const std::size_t fours = count / 4 * 4;
    for (std::size_t i = 0; i < fours; i += 4) {
        *reinterpret_cast<UnalignedFourUnits*>(units + i) = truncated(deviations(x, i) * deviations(y, i) / resolution);
    }
    for (std::size_t i = fours; i < count; ++i) {
        // The same conversion, of one of four equal numbers.
        units[i] = truncated(Four{} + deviation(x, i) * deviation(y, i) / resolution)[0];
    }
}

}  // namespace
}  // namespace vorlan
