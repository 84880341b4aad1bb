#include "analysis/Stresses.h"

#include <algorithm>
#include <array>
#include <utility>

#include "analysis/AnalysedSeries.h"
#include "analysis/MomentEstimators.h"
#include "analysis/StressPairs.h"

namespace vorlan {

namespace {

/// The working velocities, all of the first column's length.
ThreeColumns workingVelocities(const SAdvProbe& probe) {
    ThreeColumns columns;
    const SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    const auto samples = static_cast<std::size_t>(probe.WorkingSamples());
    for (std::size_t c = 0; c < columns.size() && !velocities.IsEmpty(); ++c) {
        columns[c] = ColumnSamples::of(velocities.GetAt(static_cast<int>(c)));
        if (columns[c].units.size() < samples) {
            throw InvalidArgument();
        }
        columns[c].units = columns[c].units.first(samples);
    }
    return columns;
}

/// (x - mean of x) (y - mean of y) of every sample, stored in the resolution of column.
void storeProducts(SArray& column, const ColumnSamples& x, double meanX, const ColumnSamples& y, double meanY) {
    // Some at a time, so that the values stay near.
    constexpr std::size_t kPart = 1024;
    std::array<double, kPart> products;
    column.ResizeForOverwrite(x.units.size());
    const std::span<std::int32_t> stored = column.view();
    for (std::size_t first = 0; first < stored.size(); first += kPart) {
        const std::size_t count = std::min(kPart, stored.size() - first);
        for (std::size_t i = 0; i < count; ++i) {
            products[i] = (x.units[first + i] * x.scale - meanX) * (y.units[first + i] * y.scale - meanY);
        }
        truncateToUnits(std::span(products).first(count), column.GetScale(), stored.data() + first);
    }
}

}  // namespace

void formStresses(SAdvProbe& probe, StressResolution resolution, Progress& progress) {
    const ThreeColumns columns = workingVelocities(probe);
    const std::array<double, 3> means = columnMeans(columns);
    std::copy(means.begin(), means.end(), probe.scalarResults.begin() + SAdvProbe::kFluctuationMeans);
    progress.breathe();

    const SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    SMultiArray& stresses = probe.workTables[SAdvProbe::kStresses];
    stresses.Reshape(kStressPairs, 1.0);
    for (int pair = 0; pair < kStressPairs; ++pair) {
        const StressPair& components = kStressPairComponents[static_cast<std::size_t>(pair)];
        const auto x = static_cast<std::size_t>(components.first);
        const auto y = static_cast<std::size_t>(components.second);
        SArray& column = stresses.ElementAt(pair);
        if (!velocities.IsEmpty()) {
            const int lender = resolution == StressResolution::SamePosition ? pair : 0;
            column.SetScale(velocities.GetAt(lender).GetScale());
        }
        storeProducts(column, columns[x], means[x], columns[y], means[y]);
        progress.breathe();
    }

    // The moments are those of the stored products, of the samples that count.
    std::array<SArray, 3> counted = countedColumns(probe, {&stresses.GetAt(0), &stresses.GetAt(1), &stresses.GetAt(2)});
    const std::array<Moments, 3> moments =
        columnMoments({ColumnSamples::of(counted[0]), ColumnSamples::of(counted[1]), ColumnSamples::of(counted[2])});
    for (int pair = 0; pair < kStressPairs; ++pair) {
        STimeSeries& series = probe.Series(STimeSeries::UV + pair);
        series.samplingInterval = probe.samplingInterval;
        series.values = std::move(counted[static_cast<std::size_t>(pair)]);
        series.moments = moments[static_cast<std::size_t>(pair)];
        probe.SetStressMoments(pair, series.moments);
    }
    probe.stressesFormed = 1;
    progress.breathe();
}

void computeStressStatistics(SAdvProbe& probe, Progress& progress) {
    const std::array<Moments, 3> velocities = columnMoments(workingVelocities(probe));
    progress.breathe();
    const SMultiArray& stresses = probe.workTables[SAdvProbe::kStresses];
    const std::array<double, 3> means =
        columnMeans({ColumnSamples::of(stresses.GetAt(0)), ColumnSamples::of(stresses.GetAt(1)),
                     ColumnSamples::of(stresses.GetAt(2))});
    for (std::size_t c = 0; c < velocities.size(); ++c) {
        probe.statistics[SAdvProbe::kVelocityVariances + c] = velocities[c].variance;
        probe.statistics[SAdvProbe::kMeanStresses + c] = means[c];
    }
    progress.breathe();
}

}  // namespace vorlan
