#pragma once

#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

void eventSumsLoop(const double* x, const std::size_t* events, std::size_t count, double* sums) {
    Lanes sum[kWidestBlock];
#pragma GCC unroll 16
    for (std::size_t r = 0; r < kWidestBlock; ++r) {
        sum[r] = load(sums + r * kLanes);
    }
    for (std::size_t e = 0; e < count; ++e) {
        const double* around = x + events[e];
#pragma GCC unroll 16
        for (std::size_t r = 0; r < kWidestBlock; ++r) {
            sum[r] += load(around + r * kLanes);
        }
    }
#pragma GCC unroll 16
    for (std::size_t r = 0; r < kWidestBlock; ++r) {
        store(sums + r * kLanes, sum[r]);
    }
}

}  // namespace
}  // namespace vorlan
