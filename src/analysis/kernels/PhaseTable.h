#pragma once

#include <span>
#include <vector>

#include "analysis/kernels/KernelSet.h"

namespace vorlan {

/// Cosines and sines of the phases kPi i k / L for integers i, k and one length L; i k stays below 2^53.
///
/// The phase is reduced with integers, m = i k mod 2L, and looked up; what the written constant kPi lacks to pi
/// grows with the product i k and is put back by the first terms of an addition theorem. So a phase of some ten
/// thousand turns is as accurate as a small one.
class PhaseTable {
  public:
    /// InvalidArgument for length 0.
    explicit PhaseTable(std::size_t length);

    /// What KernelSet::phaseRows looks up in; good while the table is.
    PhaseCircle circle() const { return {points_.data(), points_.size(), lack_}; }

    /// sum over k of terms[k] cos(kPi i k / L), k ascending.
    double cosineSum(std::span<const double> terms, std::size_t frequency) const;

  private:
    double lack_;                             // (pi - kPi) / L
    std::vector<PhaseCircle::Point> points_;  // of pi m / L, m = 0..2L-1
};

}  // namespace vorlan
