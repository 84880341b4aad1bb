#pragma once

#include "analysis/kernels/KernelSet.h"
#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

/// count lags behind one accurate phase, for R registers of frequencies and S series. A function of its own: within
/// the loop over the blocks the compiler runs out of registers.
template <std::size_t S, bool Sine, std::size_t R>
[[gnu::noinline]] void trigonometricBlock(const double* const* terms, std::size_t firstLag, std::size_t count,
                                          const PhaseRow* steps, const PhaseRow* block, std::size_t offset,
                                          double* sums) {
    const double* term[S];
    Lanes sum[S][R];
    Lanes blockCosine[R];
    Lanes blockSine[R];
#pragma GCC unroll 4
    for (std::size_t r = 0; r < R; ++r) {
        blockCosine[r] = load(block->cosine + offset + r * kLanes);
        blockSine[r] = load(block->sine + offset + r * kLanes);
#pragma GCC unroll 4
        for (std::size_t s = 0; s < S; ++s) {
            term[s] = terms[s] + firstLag;
            sum[s][r] = load(sums + s * kFrequencyBlock + r * kLanes);
        }
    }
    const double* row = steps->cosine + offset;
    for (std::size_t t = 0; t < count; ++t, row += sizeof(PhaseRow) / sizeof(double)) {
#pragma GCC unroll 4
        for (std::size_t r = 0; r < R; ++r) {
            const Lanes cosine = load(row + r * kLanes);
            const Lanes sine = load(row + kFrequencyBlock + r * kLanes);
            const Lanes w =
                Sine ? blockSine[r] * cosine + blockCosine[r] * sine : blockCosine[r] * cosine - blockSine[r] * sine;
#pragma GCC unroll 4
            for (std::size_t s = 0; s < S; ++s) {
                sum[s][r] += w * term[s][t];
            }
        }
    }
#pragma GCC unroll 4
    for (std::size_t r = 0; r < R; ++r) {
#pragma GCC unroll 4
        for (std::size_t s = 0; s < S; ++s) {
            store(sums + s * kFrequencyBlock + r * kLanes, sum[s][r]);
        }
    }
}

template <std::size_t S, bool Sine>
void trigonometricSumsOf(const double* const* terms, std::size_t count, const PhaseTables& phases, double* sums) {
    constexpr std::size_t kRegisters = 2;
    for (std::size_t i = 0; i < S * kFrequencyBlock; ++i) {
        sums[i] = 0.0;
    }
    for (std::size_t offset = 0; offset < kFrequencyBlock; offset += kRegisters * kLanes) {
        const PhaseRow* block = phases.blocks;
        for (std::size_t lag = 0; lag < count; lag += kPhaseSteps, ++block) {
            const std::size_t left = count - lag;
            trigonometricBlock<S, Sine, kRegisters>(terms, lag, left < kPhaseSteps ? left : kPhaseSteps, phases.steps,
                                                    block, offset, sums + offset);
        }
    }
}

template <bool Sine>
void trigonometricSumsLoop(const double* const* terms, std::size_t series, std::size_t count, const PhaseTables& phases,
                           double* sums) {
    static_assert(kSharedSeries == 3);
    switch (series) {
        case 1:
            return trigonometricSumsOf<1, Sine>(terms, count, phases, sums);
        case 2:
            return trigonometricSumsOf<2, Sine>(terms, count, phases, sums);
        default:
            return trigonometricSumsOf<3, Sine>(terms, count, phases, sums);
    }
}

}  // namespace
}  // namespace vorlan
