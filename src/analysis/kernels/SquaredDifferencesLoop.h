#pragma once

#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

inline std::size_t smaller(std::size_t a, std::size_t b) {
    return a < b ? a : b;
}
inline std::size_t larger(std::size_t a, std::size_t b) {
    return a < b ? b : a;
}

/// Terms first..last-1 of one register of lags.
inline void squaredDifferencesOfRegister(const double* d, std::size_t lag, std::size_t first, std::size_t last,
                                         double* sums) {
    Lanes sum = load(sums);
    for (std::size_t p = first; p < last; ++p) {
        const Lanes v = difference<false>(load(d + p), spread(d[p - lag]));
        sum += v * v;
    }
    store(sums, sum);
}

/// Terms first..last-1 of R registers of lags.
template <std::size_t R>
void squaredDifferencesOf(const double* d, std::size_t firstLag, std::size_t first, std::size_t last, double* sums) {
    Lanes sum[R];
#pragma GCC unroll 16
    for (std::size_t r = 0; r < R; ++r) {
        sum[r] = load(sums + r * kLanes);
    }
    const double* y = d - firstLag;
    for (std::size_t p = first; p < last; ++p) {
        const Lanes v = load(d + p);
        // Half the differences on the adders, half on the multipliers: each unit has a stretch of its own, taking turns
        // they wait for each other.
#pragma GCC unroll 16
        for (std::size_t r = 0; r < R / 2; ++r) {
            const Lanes w = difference<false>(v, spread(*(y + p - r * kLanes)));
            sum[r] += w * w;
        }
#pragma GCC unroll 16
        for (std::size_t r = R / 2; r < R; ++r) {
            const Lanes w = difference<true>(v, spread(*(y + p - r * kLanes)));
            sum[r] += w * w;
        }
    }
#pragma GCC unroll 16
    for (std::size_t r = 0; r < R; ++r) {
        store(sums + r * kLanes, sum[r]);
    }
}

void squaredDifferencesLoop(const double* d, std::size_t size, std::size_t firstLag, std::size_t lags,
                            std::size_t first, std::size_t last, double* sums) {
    const std::size_t registers = (lags + kLanes - 1) / kLanes;
    // Registers of d start below this.
    const std::size_t registerEnd = size < kLanes ? 0 : size - kLanes + 1;
    // From here on every lag of the block has its term.
    const std::size_t start = larger(first, firstLag + (kWidestBlock - 1) * kLanes);
    for (std::size_t r = 0; r < registers; ++r) {
        const std::size_t lag = firstLag + r * kLanes;
        squaredDifferencesOfRegister(d, lag, larger(first, lag), smaller(smaller(last, start), registerEnd),
                                     sums + r * kLanes);
    }
    const std::size_t end = smaller(last, registerEnd);
    if (start < end) {
        if (registers > kWidestBlock / 2) {
            squaredDifferencesOf<kWidestBlock>(d, firstLag, start, end, sums);
        } else {
            squaredDifferencesOf<kWidestBlock / 2>(d, firstLag, start, end, sums);
        }
    }
    // The last terms, where a register would reach beyond d.
    for (std::size_t l = 0; l < lags; ++l) {
        const std::size_t lane = l % kLanes;
        const std::size_t lag = firstLag + l - lane;
        for (std::size_t p = larger(larger(first, lag), registerEnd); p + lane < size && p < last; ++p) {
            const double v = d[p - lag] - d[p + lane];
            sums[l] += v * v;
        }
    }
}

}  // namespace
}  // namespace vorlan
