#pragma once

#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

// Loads are all the work here, and the widest registers cross from cache line to cache line most often.
constexpr std::size_t kEventLanes = kLanes < 4 ? kLanes : 4;
constexpr std::size_t kEventRegisters = kLanes < 4 ? 8 : 16;

using EventLanes = double __attribute__((vector_size(kEventLanes * sizeof(double))));
using UnalignedEventLanes = double __attribute__((vector_size(kEventLanes * sizeof(double)), aligned(8), may_alias));

template <std::size_t R>
void eventSumsOf(const double* const* around, std::size_t count, std::size_t first, double* sums) {
    EventLanes sum[R];
#pragma GCC unroll 16
    for (std::size_t r = 0; r < R; ++r) {
        sum[r] = *reinterpret_cast<const UnalignedEventLanes*>(sums + first + r * kEventLanes);
    }
    for (std::size_t e = 0; e < count; ++e) {
        const double* x = around[e] + first;
        keepApart(x);
#pragma GCC unroll 16
        for (std::size_t r = 0; r < R; ++r) {
            sum[r] += *reinterpret_cast<const UnalignedEventLanes*>(x + r * kEventLanes);
        }
    }
#pragma GCC unroll 16
    for (std::size_t r = 0; r < R; ++r) {
        *reinterpret_cast<UnalignedEventLanes*>(sums + first + r * kEventLanes) = sum[r];
    }
}

/// Takes blocks of R registers of lags while there are so many, then smaller ones.
template <std::size_t R>
void eventSumsFrom(const double* const* around, std::size_t count, std::size_t first, std::size_t lags, double* sums) {
    for (; first + R * kEventLanes <= lags; first += R * kEventLanes) {
        eventSumsOf<R>(around, count, first, sums);
    }
    if constexpr (R > 1) {
        eventSumsFrom<R / 2>(around, count, first, lags, sums);
    }
}

void eventSumsLoop(const double* const* around, std::size_t count, std::size_t lags, double* sums) {
    eventSumsFrom<kEventRegisters>(around, count, 0, lags, sums);
}

}  // namespace
}  // namespace vorlan
