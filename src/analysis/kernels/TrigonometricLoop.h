#pragma once

#include "analysis/kernels/KernelSet.h"
#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

/// One block of lags for R registers of frequencies and S series: the terms' even parts times the cosines and their odd
/// parts times the sines around the middle, then both turned to the middle's own phase. A function of its own: within
/// the loop over the blocks the compiler runs out of registers.
template <std::size_t S, bool Sine, std::size_t R>
[[gnu::noinline]] void trigonometricBlock(const FoldedTerms* const* terms, const PhaseRow* steps,
                                          const PhaseRow* middle, std::size_t offset, double* sums) {
    Lanes even[S][R];
    Lanes odd[S][R];
    const FoldedTerms* block[S][R];
#pragma GCC unroll 4
    for (std::size_t s = 0; s < S; ++s) {
#pragma GCC unroll 4
        for (std::size_t r = 0; r < R; ++r) {
            even[s][r] = Lanes{};
            odd[s][r] = Lanes{};
            block[s][r] = terms[s];
            if constexpr (S > 1 && kLanes == 8) {
                keepApart(block[s][r]);
            }
        }
    }
    for (std::size_t t = 0; t < kFoldedSteps; ++t) {
        Lanes wave[R];
#pragma GCC unroll 4
        for (std::size_t r = 0; r < R; ++r) {
            wave[r] = loadOnce(steps[t].cosine + offset + r * kLanes);
        }
#pragma GCC unroll 4
        for (std::size_t s = 0; s < S; ++s) {
#pragma GCC unroll 4
            for (std::size_t r = 0; r < R; ++r) {
                even[s][r] += wave[r] * block[s][r]->even[t];
            }
        }
#pragma GCC unroll 4
        for (std::size_t r = 0; r < R; ++r) {
            wave[r] = loadOnce(steps[t].sine + offset + r * kLanes);
        }
#pragma GCC unroll 4
        for (std::size_t s = 0; s < S; ++s) {
#pragma GCC unroll 4
            for (std::size_t r = 0; r < R; ++r) {
                odd[s][r] += wave[r] * block[s][r]->odd[t];
            }
        }
    }
#pragma GCC unroll 4
    for (std::size_t r = 0; r < R; ++r) {
        const Lanes cosine = load(middle->cosine + offset + r * kLanes);
        const Lanes sine = load(middle->sine + offset + r * kLanes);
#pragma GCC unroll 4
        for (std::size_t s = 0; s < S; ++s) {
            double* sum = sums + s * kFrequencyBlock + r * kLanes;
            const Lanes part = Sine ? sine * even[s][r] + cosine * odd[s][r] : cosine * even[s][r] - sine * odd[s][r];
            store(sum, load(sum) + part);
        }
    }
}

template <std::size_t S, bool Sine>
void trigonometricSumsOf(const FoldedTerms* const* terms, std::size_t blocks, const PhaseTables& phases, double* sums) {
    // As many sums at once as hide the latency of an addition and fit the registers.
    constexpr std::size_t kRegisters = S == 1 && kLanes < 8 ? 4 : 2;
    for (std::size_t i = 0; i < S * kFrequencyBlock; ++i) {
        sums[i] = 0.0;
    }
    for (std::size_t offset = 0; offset < kFrequencyBlock; offset += kRegisters * kLanes) {
        for (std::size_t b = 0; b < blocks; ++b) {
            const FoldedTerms* block[S];
#pragma GCC unroll 4
            for (std::size_t s = 0; s < S; ++s) {
                block[s] = terms[s] + b;
            }
            trigonometricBlock<S, Sine, kRegisters>(block, phases.steps, phases.middles + b, offset, sums + offset);
        }
    }
}

template <bool Sine>
void trigonometricSumsLoop(const FoldedTerms* const* terms, std::size_t series, std::size_t blocks,
                           const PhaseTables& phases, double* sums) {
    static_assert(kSharedSeries == 3);
    switch (series) {
        case 1:
            return trigonometricSumsOf<1, Sine>(terms, blocks, phases, sums);
        case 2:
            return trigonometricSumsOf<2, Sine>(terms, blocks, phases, sums);
        default:
            return trigonometricSumsOf<3, Sine>(terms, blocks, phases, sums);
    }
}

}  // namespace
}  // namespace vorlan
