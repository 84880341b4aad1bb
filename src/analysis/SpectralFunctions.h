#pragma once

#include <span>
#include <vector>

#include "analysis/Progress.h"

namespace vorlan {

/// Autocovariance of N deviations for lags 0..lags-1 with the unbiased divisor:
///   R[k] = (sum over j = 0..N-k-1 of d[j+k] d[j]) / (N - k), each sum in index order.
/// InvalidArgument when lags is negative or above N. The bytes are those of the plain double loop on every machine.
std::vector<double> autocovariance(std::span<const double> deviations, int lags, Progress& progress);

/// Second-order structure function for lags 0..lags-1:
///   D[k] = (sum over j = 0..N-k-1 of (d[j] - d[j+k])^2) / (N - k), each sum in index order.
std::vector<double> structureFunction(std::span<const double> deviations, int lags, Progress& progress);

/// Blackman-Tukey spectrum of a covariance function R of M lags, for frequency indexes 0..M-1:
///   s[i] = sum over k = 1..M-2 of W(code, k, M-1) R[k] cos(pi i k / (M-1)); the last lag is left out;
///   rad/s: S[i] = (R[0] + 2 s[i]) dt / pi; Hz: S[i] = 2 (R[0] + 2 s[i]) dt.
/// pi is 3.141592653589 in window and transform. With M - 1 not above 1 the sum is empty.
std::vector<double> powerSpectrum(std::span<const double> covariance, int windowCode, int unitSelector,
                                  double samplingInterval, Progress& progress);

/// Several covariance functions of one length at once: the cosines are shared. Same values as one by one.
std::vector<std::vector<double>> powerSpectra(std::span<const std::vector<double>> covariances, int windowCode,
                                              int unitSelector, double samplingInterval, Progress& progress);

}  // namespace vorlan
