#pragma once

#include <string>
#include <vector>

#include "model/StageSettings.h"

namespace vorlan {

inline constexpr const char* kFilterWidthTooSmall =
    "Filter width too small ! This value should be larger than sampling rate.";
inline constexpr const char* kFilterWidthTooLarge =
    "Filter width too large ! This value should be smaller than 1/4 time series length.";

/// The type that a click on a shape selects, and the types that may be chosen afterwards.
FilterType defaultTypeOf(FilterShape shape);
bool allowsType(FilterShape shape, FilterType type);

/// Half width M of the kernel in samples, as the double it is before it counts samples:
///   Gaussian trunc(sqrt(-ln(sqrt(6.2831852) 0.004728 / f) 0.698562 / f^2)) with f = cutoff dt,
///   others trunc(halfWidth / dt).
/// Not finite for a Gaussian with f below 0.011851.
double filterHalfWidthSamples(const FilterSettings& settings, double samplingInterval);

/// What the command does with accepted parameters.
struct FilterDecision {
    bool run = false;
    /// Refusals to show, in order; empty with run false when the width lies exactly on a limit.
    std::vector<std::string> refusals;
};

/// Runs when dt < halfWidth < T / 4 (T = samples dt) and the kernel is shorter than the record.
FilterDecision decideFilter(const FilterSettings& settings, int samples, double samplingInterval);

}  // namespace vorlan
