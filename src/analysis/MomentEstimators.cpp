#include "analysis/MomentEstimators.h"

#include <algorithm>
#include <cmath>

namespace vorlan {

namespace {

Moments momentsFrom(double mean, const PowerSums& sums, double n) {
    Moments moments;
    moments.mean = mean;
    moments.variance = sums.squares / (n - 1.0);
    moments.skewness = sums.cubes / (n * moments.variance * std::sqrt(moments.variance));
    moments.kurtosis = sums.fourths / (n * moments.variance * moments.variance) - 3.0;
    return moments;
}

/// add(value, sum) for every sample of every column, j ascending; what one column has more comes after.
template <class Sum, class Add>
void addSideBySide(const ThreeColumns& columns, std::array<Sum, 3>& sums, Add add) {
    const auto& [x, y, z] = columns;
    const std::size_t common = std::min({x.units.size(), y.units.size(), z.units.size()});
    // Sums in variables of their own stay in registers.
    Sum first = sums[0];
    Sum second = sums[1];
    Sum third = sums[2];
    for (std::size_t j = 0; j < common; ++j) {
        add(x.units[j] * x.scale, 0, first);
        add(y.units[j] * y.scale, 1, second);
        add(z.units[j] * z.scale, 2, third);
    }
    sums = {first, second, third};
    for (std::size_t c = 0; c < sums.size(); ++c) {
        for (std::size_t j = common; j < columns[c].units.size(); ++j) {
            add(columns[c].units[j] * columns[c].scale, c, sums[c]);
        }
    }
}

}  // namespace

Moments momentsOf(std::span<const double> samples) {
    const auto n = static_cast<double>(samples.size());
    double sum = 0.0;
    for (const double x : samples) {
        sum += x;
    }
    const double mean = sum / n;
    PowerSums sums;
    for (const double x : samples) {
        sums.add(x - mean);
    }
    return momentsFrom(mean, sums, n);
}

std::array<double, 3> columnMeans(const ThreeColumns& columns) {
    std::array<double, 3> means{};
    addSideBySide(columns, means, [](double value, std::size_t, double& sum) { sum += value; });
    for (std::size_t c = 0; c < means.size(); ++c) {
        means[c] /= static_cast<double>(columns[c].units.size());
    }
    return means;
}

std::array<Moments, 3> columnMoments(const ThreeColumns& columns) {
    const std::array<double, 3> means = columnMeans(columns);
    std::array<PowerSums, 3> sums;
    addSideBySide(columns, sums, [means](double value, std::size_t c, PowerSums& sum) { sum.add(value - means[c]); });
    std::array<Moments, 3> moments;
    for (std::size_t c = 0; c < moments.size(); ++c) {
        moments[c] = momentsFrom(means[c], sums[c], static_cast<double>(columns[c].units.size()));
    }
    return moments;
}

std::vector<double> deviationsFrom(std::span<const double> samples, double mean) {
    std::vector<double> deviations(samples.size());
    std::transform(samples.begin(), samples.end(), deviations.begin(), [mean](double x) { return x - mean; });
    return deviations;
}

UnitRange unitRange(std::span<const std::int32_t> units) {
    UnitRange range{units.front(), units.front()};
    for (const std::int32_t n : units) {
        range.lowest = std::min(range.lowest, n);
        range.highest = std::max(range.highest, n);
    }
    return range;
}

Extremes extremesOf(const SArray& samples) {
    if (samples.IsEmpty()) {
        throw InvalidArgument();
    }
    const double scale = samples.GetScale();
    if (scale > 0.0) {
        // The values rise with their integers, of which several are compared at once.
        const auto [lowest, highest] = unitRange(samples.view());
        return {lowest * scale, highest * scale};
    }
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
