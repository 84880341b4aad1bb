#include "analysis/MomentEstimators.h"

#include <algorithm>
#include <cmath>

#include "analysis/kernels/KernelSet.h"

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

/// The samples that all columns have.
std::size_t commonSize(const ThreeColumns& columns) {
    return std::min({columns[0].units.size(), columns[1].units.size(), columns[2].units.size()});
}

/// Hands the samples that all columns have to a kernel, in order and in pieces: the kernels go on with their sums.
template <class Sum>
void inPieces(const ThreeColumns& columns, const std::array<double, 3>& means, Progress& progress, Sum sum) {
    // Less than a millisecond.
    constexpr std::size_t kPiece = std::size_t{1} << 17;
    const std::size_t common = commonSize(columns);
    for (std::size_t first = 0; first < common; first += kPiece) {
        std::array<UnitColumn, 3> summed;
        for (std::size_t c = 0; c < summed.size(); ++c) {
            summed[c] = {columns[c].units.data() + first, columns[c].scale, means[c]};
        }
        sum(summed.data(), std::min(kPiece, common - first));
        progress.pump();
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

std::array<double, 3> columnMeans(const ThreeColumns& columns, Progress& progress) {
    const std::size_t common = commonSize(columns);
    ColumnSums totals{};
    inPieces(columns, {}, progress, [&totals](const UnitColumn* summed, std::size_t count) {
        kernelsInUse().columnTotals(summed, count, totals);
    });
    std::array<double, 3> means{};
    for (std::size_t c = 0; c < means.size(); ++c) {
        const auto& [units, scale] = columns[c];
        // What one column has more comes after.
        for (std::size_t j = common; j < units.size(); ++j) {
            totals.of[c] += units[j] * scale;
        }
        means[c] = totals.of[c] / static_cast<double>(units.size());
    }
    return means;
}

std::array<Moments, 3> columnMoments(const ThreeColumns& columns, Progress& progress) {
    const std::array<double, 3> means = columnMeans(columns, progress);
    const std::size_t common = commonSize(columns);
    std::array<ColumnSums, 3> powers{};
    inPieces(columns, means, progress, [&powers](const UnitColumn* summed, std::size_t count) {
        kernelsInUse().columnPowers(summed, count, powers.data());
    });
    std::array<Moments, 3> moments;
    for (std::size_t c = 0; c < moments.size(); ++c) {
        const auto& [units, scale] = columns[c];
        PowerSums sums{powers[0].of[c], powers[1].of[c], powers[2].of[c]};
        for (std::size_t j = common; j < units.size(); ++j) {
            sums.add(units[j] * scale - means[c]);
        }
        moments[c] = momentsFrom(means[c], sums, static_cast<double>(units.size()));
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
