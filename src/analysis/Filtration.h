#pragma once

#include <span>
#include <vector>

#include "analysis/FilterSettings.h"
#include "analysis/Progress.h"
#include "model/SAdvProbe.h"

namespace vorlan {

/// The 2M weights of a kernel of half width M samples, in the order of the samples they belong to: t = M-1 .. -M.
///   Rectangle 1 / (2M + 1); Tukey (cos(6.2831852 t / (2M + 1)) + 1) / (2M + 1);
///   Gaussian f / (sqrt(6.2831852) 0.591) exp(-t^2 f^2 / 0.698562), f = cutoff dt;
///   Bell sqrt(2) exp(-3.1415926 t^2 / (2 M^2)) cos(6.2831852 t / M) / M.
/// The span leaves out t = +M, though the divisors count it.
std::vector<double> filterWeights(FilterShape shape, int halfWidth, double f);

/// The filtered samples, 2M = weights.size() fewer than x, with S[j] = sum over i of weights[i] x[j + 1 + i]:
///   low-pass, band-pass S[j]; high-pass x[j] - S[j]; band-cut x[j + M] - S[j].
/// Each sum in the order of i. InvalidArgument when the kernel is not shorter than x.
std::vector<double> filtered(std::span<const double> x, std::span<const double> weights, FilterType type,
                             Progress& progress);

/// Replaces the working velocities by the filtered ones, each in the resolution of its column. Marks, scores and
/// auxiliary tables keep their length: output j keeps the time of index j. InvalidArgument when the kernel is not
/// shorter than the record; ask decideFilter() first.
void filterVelocities(SAdvProbe& probe, const FilterSettings& settings, Progress& progress);

/// Filters the working record as decideFilter() decides; then the title "Filtered time series", stresses and moments
/// follow. Returns that decision: without a run nothing is changed.
FilterDecision filterSeries(SAdvProbe& probe, const FilterSettings& settings, Progress& progress);

}  // namespace vorlan
