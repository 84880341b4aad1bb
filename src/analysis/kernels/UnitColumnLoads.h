#pragma once

#if defined(__SSE2__)
#include <immintrin.h>
#endif

#include "analysis/kernels/KernelSet.h"
#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

// Four integers at once, whatever the width of the registers.
using Four = double __attribute__((vector_size(32)));
using FourUnits = std::int32_t __attribute__((vector_size(16)));
using UnalignedFourUnits __attribute__((vector_size(16), aligned(4), may_alias)) = std::int32_t;

inline FourUnits loadUnits(const std::int32_t* units) {
    return *reinterpret_cast<const UnalignedFourUnits*>(units);
}

inline Four asDoubles(FourUnits units) {
#if defined(__AVX__)
    return _mm256_cvtepi32_pd(reinterpret_cast<__m128i>(units));
#else
    return __builtin_convertvector(units, Four);
#endif
}

inline double deviation(const UnitColumn& column, std::size_t i) {
    return column.units[i] * column.scale - column.mean;
}

}  // namespace
}  // namespace vorlan
