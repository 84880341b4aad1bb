#include "analysis/ResultAxes.h"

#include <cmath>
#include <limits>

#include "analysis/MomentEstimators.h"
#include "model/Index.h"

namespace vorlan {

std::vector<double> bandTimes(const STimeSeries& series, std::uint32_t bandMode, double samplingInterval) {
    const int bands = series.bandMeans.GetSize();
    const double offset = bandMode == 0 ? 0.5 : 1.0;
    std::vector<double> times;
    for (int k = 0; k < bands; ++k) {
        times.push_back((k + offset) * (series.values.GetSize() / bands) * samplingInterval);
    }
    return times;
}

std::vector<double> gradeCentres(const STimeSeries& series) {
    const int grades = series.histogram.GetSize();
    if (series.values.IsEmpty()) {
        return std::vector<double>(asSize(grades), std::numeric_limits<double>::quiet_NaN());
    }
    const Extremes extremes = extremesOf(series.values);
    const double width = (extremes.maximum - extremes.minimum) / grades;
    std::vector<double> centres;
    for (int k = 0; k < grades; ++k) {
        centres.push_back(extremes.minimum + (k + 0.5) * width);
    }
    return centres;
}

double holeIncrementOf(const SAdvProbe& probe, double otherwise) {
    const double increment = probe.statistics[SAdvProbe::kQuadrantRun];
    return increment != 0.0 && std::isfinite(increment) ? increment : otherwise;
}

double patternLag(int i, int size, double samplingInterval) {
    return (i - size / 2) * samplingInterval;
}

}  // namespace vorlan
