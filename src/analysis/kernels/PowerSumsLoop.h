#pragma once

#include "analysis/kernels/KernelSet.h"
#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

/// Registers of bands: three sums each hide the latency of an addition and leave room for the deviations.
constexpr std::size_t kBandRegisters = 3;

void powerSumsLoop(const double* x, std::size_t count, BandSums& bands) {
    Lanes mean[kBandRegisters];
    Lanes squares[kBandRegisters];
    Lanes cubes[kBandRegisters];
    Lanes fourths[kBandRegisters];
#pragma GCC unroll 4
    for (std::size_t r = 0; r < kBandRegisters; ++r) {
        mean[r] = load(bands.means + r * kLanes);
        squares[r] = load(bands.squares + r * kLanes);
        cubes[r] = load(bands.cubes + r * kLanes);
        fourths[r] = load(bands.fourths + r * kLanes);
    }
    for (std::size_t i = 0; i < count; ++i) {
        const Lanes value = spread(x[i]);
#pragma GCC unroll 4
        for (std::size_t r = 0; r < kBandRegisters; ++r) {
            const Lanes d = value - mean[r];
            const Lanes square = d * d;
            const Lanes cube = square * d;
            squares[r] += square;
            cubes[r] += cube;
            fourths[r] += cube * d;
        }
    }
#pragma GCC unroll 4
    for (std::size_t r = 0; r < kBandRegisters; ++r) {
        store(bands.squares + r * kLanes, squares[r]);
        store(bands.cubes + r * kLanes, cubes[r]);
        store(bands.fourths + r * kLanes, fourths[r]);
    }
}

}  // namespace
}  // namespace vorlan
