#pragma once

#include "analysis/kernels/KernelSet.h"
#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

/// One block of lags of one series.
struct TrigonometricUnit {
    const FoldedTerms* terms;
    const PhaseRow* middle;
    double* sums;
};

/// R registers of frequencies of U units: the terms' even parts times the cosines and their odd parts times the sines
/// around the middle, then both turned to each middle's own phase. The units share the sines and cosines, whether they
/// are blocks of one series or of several. A function of its own: within the loop over the units the compiler runs out
/// of registers.
template <std::size_t U, bool Sine, std::size_t R>
[[gnu::noinline]] void trigonometricUnits(const TrigonometricUnit* units, const PhaseRow* steps, std::size_t offset) {
    Lanes even[U][R];
    Lanes odd[U][R];
    const FoldedTerms* terms[U][R];
#pragma GCC unroll 4
    for (std::size_t u = 0; u < U; ++u) {
#pragma GCC unroll 4
        for (std::size_t r = 0; r < R; ++r) {
            // At the middle itself the cosine is 1 and the sine 0.
            even[u][r] = Lanes{} + spread(units[u].terms->even[0]);
            odd[u][r] = Lanes{};
            terms[u][r] = units[u].terms;
            if constexpr (U > 1 && kLanes == 8) {
                keepApart(terms[u][r]);
            }
        }
    }
    for (std::size_t t = 1; t < kFoldedSteps; ++t) {
        Lanes wave[R];
#pragma GCC unroll 4
        for (std::size_t r = 0; r < R; ++r) {
            wave[r] = loadOnce(steps[t].cosine + offset + r * kLanes);
        }
#pragma GCC unroll 4
        for (std::size_t u = 0; u < U; ++u) {
#pragma GCC unroll 4
            for (std::size_t r = 0; r < R; ++r) {
                even[u][r] += wave[r] * terms[u][r]->even[t];
            }
        }
#pragma GCC unroll 4
        for (std::size_t r = 0; r < R; ++r) {
            wave[r] = loadOnce(steps[t].sine + offset + r * kLanes);
        }
#pragma GCC unroll 4
        for (std::size_t u = 0; u < U; ++u) {
#pragma GCC unroll 4
            for (std::size_t r = 0; r < R; ++r) {
                odd[u][r] += wave[r] * terms[u][r]->odd[t];
            }
        }
    }
#pragma GCC unroll 4
    for (std::size_t u = 0; u < U; ++u) {
#pragma GCC unroll 4
        for (std::size_t r = 0; r < R; ++r) {
            const std::size_t at = offset + r * kLanes;
            const Lanes cosine = load(units[u].middle->cosine + at);
            const Lanes sine = load(units[u].middle->sine + at);
            const Lanes part = Sine ? sine * even[u][r] + cosine * odd[u][r] : cosine * even[u][r] - sine * odd[u][r];
            store(units[u].sums + at, load(units[u].sums + at) + part);
        }
    }
}

template <bool Sine>
void trigonometricSumsLoop(const FoldedTerms* const* terms, std::size_t series, std::size_t blocks,
                           const PhaseTables& phases, double* sums) {
    // As many sums at once as hide the latency of an addition and fit the registers.
    constexpr std::size_t kUnits = 3;
    constexpr std::size_t kRegisters = 2;
    for (std::size_t i = 0; i < series * kFrequencyBlock; ++i) {
        sums[i] = 0.0;
    }
    for (std::size_t offset = 0; offset < kFrequencyBlock; offset += kRegisters * kLanes) {
        TrigonometricUnit units[kUnits];
        std::size_t held = 0;
        // Block after block, so that every series adds its blocks in their order.
        for (std::size_t b = 0; b < blocks; ++b) {
            for (std::size_t s = 0; s < series; ++s) {
                units[held++] = {terms[s] + b, phases.middles + b, sums + s * kFrequencyBlock};
                if (held == kUnits) {
                    trigonometricUnits<kUnits, Sine, kRegisters>(units, phases.steps, offset);
                    held = 0;
                }
            }
        }
        for (std::size_t u = 0; u < held; ++u) {
            trigonometricUnits<1, Sine, kRegisters>(units + u, phases.steps, offset);
        }
    }
}

}  // namespace
}  // namespace vorlan
