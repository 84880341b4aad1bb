#pragma once

#include "model/STimeSeries.h"

namespace vorlan {

/// Trapezoidal integral of R / variance over lags first..last, s. The last index is reduced to the length of the
/// correlation function and the loop ends at last - 2; 0 when first is not below last - 1.
double correlationIntegral(const STimeSeries& series, int first, int last);

/// Trapezoidal integral of the spectrum over indexes first..last, (cm/s)^2; the loop ends at last - 3.
double spectrumIntegral(const STimeSeries& series, int first, int last);

}  // namespace vorlan
