#pragma once

#include <array>
#include <vector>

#include "analysis/kernels/KernelSet.h"

namespace vorlan {

/// Cosines and sines of the phases kPi i k / L for integers i, k and one length L.
///
/// The phase is reduced with integers, m = i k mod 2L, and looked up; what the written constant kPi lacks to pi
/// grows with the product i k and is put back by the first terms of an addition theorem. So a phase of some ten
/// thousand turns is as accurate as a small one.
class PhaseTable {
  public:
    /// InvalidArgument for length 0.
    explicit PhaseTable(std::size_t length);

    /// The phases of frequencies first..first+kFrequencyBlock-1 and lags start, start + stride, ... (rows of them).
    void fill(std::size_t first, std::size_t start, std::size_t stride, std::size_t rows, PhaseRow* table) const;

    double cosine(std::size_t frequency, std::size_t lag) const;

  private:
    struct Point {
        double cosine;
        double sine;
    };
    using Places = std::array<std::size_t, kFrequencyBlock>;

    Places placesOf(std::size_t first, std::size_t lag) const;
    void advance(Places& places, const Places& step) const;
    void lookUp(const Places& places, std::size_t first, std::size_t lag, PhaseRow& row) const;

    std::size_t turn_;           // 2L
    double lack_;                // (pi - kPi) / L
    std::vector<Point> circle_;  // of pi m / L, m = 0..2L-1
};

}  // namespace vorlan
