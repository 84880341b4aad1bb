#include "analysis/MomentEstimators.h"

#include <algorithm>
#include <cmath>

namespace vorlan {

Moments momentsOf(std::span<const double> samples) {
    const auto n = static_cast<double>(samples.size());
    double sum = 0.0;
    for (const double x : samples) {
        sum += x;
    }
    Moments moments;
    moments.mean = sum / n;
    double squares = 0.0;
    double cubes = 0.0;
    double fourths = 0.0;
    for (const double x : samples) {
        const double d = x - moments.mean;
        squares += d * d;
        cubes += d * d * d;
        fourths += d * d * d * d;
    }
    moments.variance = squares / (n - 1.0);
    moments.skewness = cubes / (n * moments.variance * std::sqrt(moments.variance));
    moments.kurtosis = fourths / (n * moments.variance * moments.variance) - 3.0;
    return moments;
}

std::vector<double> deviationsFrom(std::span<const double> samples, double mean) {
    std::vector<double> deviations(samples.size());
    std::transform(samples.begin(), samples.end(), deviations.begin(), [mean](double x) { return x - mean; });
    return deviations;
}

Extremes extremesOf(const SArray& samples) {
    if (samples.IsEmpty()) {
        throw InvalidArgument();
    }
    const double scale = samples.GetScale();
    Extremes extremes{samples.GetValue(0), samples.GetValue(0)};
    for (const std::int32_t n : samples.view().subspan(1)) {
        const double value = n * scale;
        if (value < extremes.minimum) {
            extremes.minimum = value;
        }
        if (value > extremes.maximum) {
            extremes.maximum = value;
        }
    }
    return extremes;
}

}  // namespace vorlan
