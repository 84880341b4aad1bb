#pragma once

#include "analysis/kernels/KernelSet.h"
#include "analysis/kernels/Lanes.h"

namespace vorlan {
namespace {

/// Places on the circle of the phases of a block's frequencies.
struct PhasePlaces {
    std::size_t at[kFrequencyBlock];
};

inline PhasePlaces placesOf(const PhaseCircle& circle, std::size_t first, std::size_t lag) {
    PhasePlaces places;
    std::size_t place = first * lag % circle.turn;
    const std::size_t step = lag % circle.turn;
    for (std::size_t f = 0; f < kFrequencyBlock; ++f) {
        places.at[f] = place;
        place += step;
        place -= place < circle.turn ? 0 : circle.turn;
    }
    return places;
}

inline void advance(const PhaseCircle& circle, PhasePlaces& places, const PhasePlaces& step) {
    for (std::size_t f = 0; f < kFrequencyBlock; ++f) {
        const std::size_t next = places.at[f] + step.at[f];
        places.at[f] = next - (next < circle.turn ? 0 : circle.turn);
    }
}

/// Cosines or sines of neighbouring places. Put together from registers: instructions that gather, and loads from what
/// was just stored in smaller pieces, take longer.
template <class... Index>
inline Lanes gathered(const double* values, const std::size_t* places, Index... lane) {
    return Lanes{values[2 * places[lane]]...};
}

inline Lanes gathered(const double* values, const std::size_t* places) {
#if defined(__AVX512F__)
    return gathered(values, places, 0, 1, 2, 3, 4, 5, 6, 7);
#elif defined(__AVX2__)
    return gathered(values, places, 0, 1, 2, 3);
#else
    return gathered(values, places, 0, 1);
#endif
}

inline void lookUp(const PhaseCircle& circle, const PhasePlaces& places, std::size_t first, std::size_t lag,
                   PhaseRow& row) {
    // Exact: the products stay below 2^53.
    double frequencies[kFrequencyBlock];
    for (std::size_t f = 0; f < kFrequencyBlock; ++f) {
        frequencies[f] = static_cast<double>(first + f);
    }
    const Lanes k = spread(static_cast<double>(lag));
    const Lanes perProduct = spread(circle.lack);
    for (std::size_t f = 0; f < kFrequencyBlock; f += kLanes) {
        const Lanes cosine = gathered(&circle.points->cosine, places.at + f);
        const Lanes sine = gathered(&circle.points->sine, places.at + f);
        const Lanes lack = load(frequencies + f) * k * perProduct;
        const Lanes loss = spread(0.5) * lack * lack;
        store(row.cosine + f, cosine + sine * lack - cosine * loss);
        store(row.sine + f, sine - cosine * lack - sine * loss);
    }
}

void phaseRowsLoop(const PhaseCircle& circle, std::size_t first, std::size_t start, std::size_t stride,
                   std::size_t rows, PhaseRow* table) {
    // Row a * kGroup + b adds two phases: looking all of them up would take as long as the sums.
    constexpr std::size_t kGroup = 8;
    PhaseRow inner[kGroup];
    PhasePlaces places = placesOf(circle, first, 0);
    const PhasePlaces innerStep = placesOf(circle, first, stride);
    for (std::size_t b = 0; b < kGroup && b < rows; ++b) {
        lookUp(circle, places, first, b * stride, inner[b]);
        advance(circle, places, innerStep);
    }
    places = placesOf(circle, first, start);
    const PhasePlaces outerStep = placesOf(circle, first, kGroup * stride);
    for (std::size_t a = 0; a < rows; a += kGroup) {
        PhaseRow outer;
        lookUp(circle, places, first, start + a * stride, outer);
        advance(circle, places, outerStep);
        for (std::size_t b = 0; b < kGroup && a + b < rows; ++b) {
            PhaseRow& row = table[a + b];
            for (std::size_t f = 0; f < kFrequencyBlock; f += kLanes) {
                const Lanes outerCosine = load(outer.cosine + f);
                const Lanes outerSine = load(outer.sine + f);
                const Lanes innerCosine = load(inner[b].cosine + f);
                const Lanes innerSine = load(inner[b].sine + f);
                store(row.cosine + f, outerCosine * innerCosine - outerSine * innerSine);
                store(row.sine + f, outerSine * innerCosine + outerCosine * innerSine);
            }
        }
    }
}

}  // namespace
}  // namespace vorlan
