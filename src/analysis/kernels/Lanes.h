#pragma once

#include <cstddef>

#if defined(__FMA__)
#include <immintrin.h>
#endif

// Registers of doubles for the instruction set that a file is compiled for. Everything here and in the loops has
// internal linkage, and nothing of the standard library is used: the linker must not merge code of one set with
// that of another.

namespace vorlan {
namespace {

#if defined(__AVX512F__)
constexpr std::size_t kLanes = 8;
constexpr std::size_t kWidestBlock = 16;  // registers of lags; the register file holds them all
#elif defined(__AVX2__)
constexpr std::size_t kLanes = 4;
constexpr std::size_t kWidestBlock = 12;
#else
constexpr std::size_t kLanes = 2;
constexpr std::size_t kWidestBlock = 8;
#endif

using Lanes = double __attribute__((vector_size(kLanes * sizeof(double))));
using UnalignedLanes __attribute__((vector_size(kLanes * sizeof(double)), aligned(8), may_alias)) = double;

inline Lanes load(const double* p) {
    return *reinterpret_cast<const UnalignedLanes*>(p);
}
inline void store(double* p, Lanes v) {
    *reinterpret_cast<UnalignedLanes*>(p) = v;
}
inline Lanes spread(double v) {
    return v - Lanes{};
}

/// Loads into a register that is kept: used several times, the compiler would rather load again each time.
inline Lanes loadOnce(const double* p) {
    Lanes v = load(p);
#if defined(__x86_64__)
    asm("" : "+v"(v));
#endif
    return v;
}

/// Hides from the compiler where p points: equal addresses are then loaded from separately. The widest registers
/// multiply faster by a number broadcast in the same instruction than by one broadcast before for two.
template <class T>
inline void keepApart(const T*& p) {
    asm volatile("" : "+r"(p));
}

/// The difference of v and b, of either sign, on the adders or, where there is a fused operation, on the multipliers.
template <bool OnMultipliers>
inline Lanes difference(Lanes v, Lanes b) {
#if defined(__AVX512F__)
    if constexpr (OnMultipliers) {
        return _mm512_fmadd_pd(b, _mm512_set1_pd(-1.0), v);
    }
#elif defined(__FMA__)
    if constexpr (OnMultipliers) {
        return _mm256_fmadd_pd(b, _mm256_set1_pd(-1.0), v);
    }
#endif
    return v - b;
}

}  // namespace
}  // namespace vorlan
