#pragma once

#include <string>

#include "analysis/Progress.h"
#include "model/SAdvProbe.h"

namespace vorlan {

inline constexpr const char* kCrossSpectralStatus = "Cross-spectral analysis calculations:";

/// Cross-covariance functions in both directions, co-, quadrature, phase and coherence spectra of u'v', u'w', v'w',
/// with the truncation point M, window and unit of the probe's last spectral analysis, whose spectra the coherence
/// divides by. All are stored at 1e-7; functions of a later step read those of an earlier one as they were stored.
///
/// The stresses are formed when the probe has none; variances and mean stresses are computed anew; the six sets of an
/// earlier run are replaced. Lengths for M > 1: covariances and co-spectra M, quadrature, phase and coherence M - 1;
/// for M = 1: one value everywhere except that the phase has none. Sets the stage's mark. Progress positions 5, 30,
/// 50, 80, 90, 100.
///
/// Returns why it is refused (the recorded truncation point does not fit the record any more; nothing is then changed),
/// empty when done. InvalidArgument when the record's columns differ in length, or when the probe's spectra are shorter
/// than M - 1.
std::string analyseCrossSpectra(SAdvProbe& probe, Progress& progress);

}  // namespace vorlan
