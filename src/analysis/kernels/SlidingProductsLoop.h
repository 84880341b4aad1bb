#pragma once

#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

template <std::size_t R>
void slidingProductsOf(const double* x, const double* y, std::size_t steps, double* sums) {
    Lanes sum[R];
#pragma GCC unroll 16
    for (std::size_t r = 0; r < R; ++r) {
        sum[r] = load(sums + r * kLanes);
    }
    for (std::size_t p = 0; p < steps; ++p) {
        const Lanes v = load(x + p);
#pragma GCC unroll 16
        for (std::size_t r = 0; r < R; ++r) {
            sum[r] += v * *(y + p - r * kLanes);
        }
    }
#pragma GCC unroll 16
    for (std::size_t r = 0; r < R; ++r) {
        store(sums + r * kLanes, sum[r]);
    }
}

void slidingProductsLoop(const double* x, const double* y, std::size_t steps, std::size_t lags, double* sums) {
    if (lags > kWidestBlock / 2 * kLanes) {
        slidingProductsOf<kWidestBlock>(x, y, steps, sums);
    } else if (lags > kWidestBlock / 4 * kLanes) {
        slidingProductsOf<kWidestBlock / 2>(x, y, steps, sums);
    } else {
        slidingProductsOf<kWidestBlock / 4>(x, y, steps, sums);
    }
}

}  // namespace
}  // namespace vorlan
