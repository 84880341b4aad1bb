#pragma once

#include <string>
#include <vector>

#include "analysis/Progress.h"
#include "model/SAdvProbe.h"
#include "model/StageSettings.h"

namespace vorlan {

/// Probability density of the series in n grades of width du = (max - min) / n:
///   h[k] = (c[k] / N) / du, c[k] samples with du k + min <= x <= du k + min + du.
/// Both ends belong to a grade, so a sample on a boundary counts twice; the last grade ends at max itself. Stored in
/// the resolution of the samples. A constant series stores what a division by 0 gives. Cost does not grow with N n.
/// InvalidArgument for an empty series, fewer than one grade or more than kMaximumGrades.
void computeHistogram(STimeSeries& series, int grades);

/// Forms the analysed series, then moments and histogram of U, V and W; sets the stage's mark. Without a sample the
/// earlier histograms stay and the moments are not finite. Returns why it is refused: never, so it is empty.
std::string analyseDistributions(SAdvProbe& probe, const HistogramSettings& settings, Progress& progress);

/// Normal density over the range of a series: x[i] = min + i |max - min| / 500,
/// y[i] = exp(-(x[i] - mean)^2 / (2 variance)) / sqrt(6.28 variance), with the moments that the series holds.
struct NormalCurve {
    std::vector<double> x;
    SArray y{0.001};
};

/// 500 points, none for an empty series.
NormalCurve normalApproximation(const STimeSeries& series);

}  // namespace vorlan
