#pragma once

#include <string>

#include "analysis/Progress.h"
#include "model/SAdvProbe.h"
#include "model/StageSettings.h"

namespace vorlan {

/// Moments of the samples in bands 0..n-1 of L = N / n samples (integer division; the rest is not used):
///   cumulative: band k covers 0 .. (k+1) L - 1;
///   fixed: band k covers k L .. (k+1) L - 1, except band n-2, which covers (n-3) L + H .. (n-2) L + H - 1 with
///   H = L / 2 when n > 2, and is not computed when n = 2.
/// With m samples and d = x - mean: mean = sum x / m, variance = sum d^2 / (m - 1),
///   skewness = sum d^3 / (variance m sqrt(variance)), kurtosis = sum d^4 / (variance^2 m) - 3.
/// Every value is stored with resolution 0.0001 and read back by the ones after it. Bands of fewer than two samples
/// are not guarded: they hold non-finite values as the columns store them. InvalidArgument without a band or for
/// more than kMaximumBands.
void computeBands(STimeSeries& series, BandMode mode, int bands, Progress& progress);

/// Forms the analysed series and replaces the bands of U, V and W; records mode and number of bands and sets the
/// stage's mark. Returns why it is refused (more bands than samples); empty when it was done.
std::string analyseStationarity(SAdvProbe& probe, const StationaritySettings& settings, Progress& progress);

}  // namespace vorlan
