#pragma once

#include <span>
#include <vector>

#include "analysis/Progress.h"

namespace vorlan {

/// Cross-covariance of two series of N deviations for lags 0..lags-1, n = N - k:
///   R[k] = (sum over j = 0..n-2 of x[j+k] y[j]) / n, each sum in index order.
/// The last product of every lag is left out while the divisor is n. InvalidArgument when the series differ in length
/// or lags is negative or above N. The bytes are those of the plain double loop on every machine.
std::vector<double> crossCovariance(std::span<const double> x, std::span<const double> y, int lags, Progress& progress);

/// Lag window and scaling of one cross-spectral estimate.
struct CrossSpectrumRun {
    int windowCode = 0;             ///< 0 rectangle, 1 Tukey, 2 Bartlett, 3 Parzen
    int unitSelector = 0;           ///< 0 Hz, 1 rad/s
    double samplingInterval = 0.0;  ///< s
};

/// Co-spectra of the even parts E of cross-covariance functions, all of one length L, for indexes i = 0..L-1:
///   s[i] = sum over k = 1..L-2 of W'(code, k, L) E[k] cos(pi i k / L);
///   rad/s: C[i] = (E[0] + 2 s[i]) dt / pi; Hz: C[i] = 2 (E[0] + 2 s[i]) dt.
/// pi is 3.141592653589 in window and transform. The cosines are shared among the functions.
std::vector<std::vector<double>> coSpectra(std::span<const std::vector<double>> even, const CrossSpectrumRun& run,
                                           Progress& progress);

/// Quadrature spectra of the odd parts O of cross-covariance functions, all of one length L:
///   Q[0] = 0; for i = 1..L-2: s[i] = sum over k = 1..L-1 of W'(code, k, L) O[k] sin(pi i k / L), scaled as coSpectra
/// scales with O[0] for E[0]. The last index has none: L-1 values, one for L = 1, none for L = 0.
std::vector<std::vector<double>> quadratureSpectra(std::span<const std::vector<double>> odd,
                                                   const CrossSpectrumRun& run, Progress& progress);

/// Phase of a co- and a quadrature value, degrees in -180..180; not a number when both are 0.
double crossPhase(double co, double quadrature);

/// Squared coherence (C^2 + Q^2) / (Sx Sy); above 1 and not a number give 1.
double squaredCoherence(double co, double quadrature, double spectrumX, double spectrumY);

}  // namespace vorlan
