#pragma once

#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

// Loads are all the work here, and the widest registers cross from cache line to cache line most often.
constexpr std::size_t kEventLanes = kLanes < 4 ? kLanes : 4;
constexpr std::size_t kEventRegisters = kLanes < 4 ? 8 : 16;

using EventLanes = double __attribute__((vector_size(kEventLanes * sizeof(double))));
using UnalignedEventLanes __attribute__((vector_size(kEventLanes * sizeof(double)), aligned(8), may_alias)) = double;

template <std::size_t R>
void eventSumsOf(const double* x, const std::size_t* events, std::size_t count, std::size_t back, double* sums) {
    EventLanes sum[R];
#pragma GCC unroll 16
    for (std::size_t r = 0; r < R; ++r) {
        sum[r] = *reinterpret_cast<const UnalignedEventLanes*>(sums + r * kEventLanes);
    }
    for (std::size_t e = 0; e < count; ++e) {
        const double* around = x + (events[e] - back);
#pragma GCC unroll 16
        for (std::size_t r = 0; r < R; ++r) {
            sum[r] += *reinterpret_cast<const UnalignedEventLanes*>(around + r * kEventLanes);
        }
    }
#pragma GCC unroll 16
    for (std::size_t r = 0; r < R; ++r) {
        *reinterpret_cast<UnalignedEventLanes*>(sums + r * kEventLanes) = sum[r];
    }
}

/// The registers of lags that are left, fewer than R.
template <std::size_t R>
void eventSumsOfRest(const double* x, const std::size_t* events, std::size_t count, std::size_t back,
                     std::size_t registers, double* sums) {
    if constexpr (R > 1) {
        if (registers == R - 1) {
            eventSumsOf<R - 1>(x, events, count, back, sums);
        } else {
            eventSumsOfRest<R - 1>(x, events, count, back, registers, sums);
        }
    }
}

void eventSumsLoop(const double* x, const std::size_t* events, std::size_t count, std::size_t back, std::size_t lags,
                   double* sums) {
    constexpr std::size_t kStep = kEventRegisters * kEventLanes;
    std::size_t first = 0;
    for (; first + kStep <= lags; first += kStep) {
        // May wrap round below 0; taken from an event's place, it wraps back.
        eventSumsOf<kEventRegisters>(x, events, count, back - first, sums + first);
    }
    eventSumsOfRest<kEventRegisters>(x, events, count, back - first, (lags - first) / kEventLanes, sums + first);
}

}  // namespace
}  // namespace vorlan
