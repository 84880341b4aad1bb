#include "model/StoreValue.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vorlan {

void truncateToUnits(std::span<const double> values, double scale, std::int32_t* units) {
    std::size_t i = 0;
#if defined(__SSE2__)
    // The processor's conversion truncates and gives the most negative integer for what does not fit.
    const __m128d divisor = _mm_set1_pd(scale);
    for (; i + 4 <= values.size(); i += 4) {
        const __m128i low = _mm_cvttpd_epi32(_mm_div_pd(_mm_loadu_pd(values.data() + i), divisor));
        const __m128i high = _mm_cvttpd_epi32(_mm_div_pd(_mm_loadu_pd(values.data() + i + 2), divisor));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(units + i), _mm_unpacklo_epi64(low, high));
    }
#endif
    for (; i < values.size(); ++i) {
        units[i] = truncateToInt32(values[i] / scale);
    }
}

}  // namespace vorlan
