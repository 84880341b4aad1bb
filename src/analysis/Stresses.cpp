#include "analysis/Stresses.h"

#include <algorithm>
#include <array>
#include <utility>

#include "analysis/AnalysedSeries.h"
#include "analysis/MomentEstimators.h"
#include "analysis/kernels/KernelSet.h"
#include "model/Index.h"

namespace vorlan {

namespace {

/// The working velocities, all of the first column's length.
ThreeColumns workingVelocities(const SAdvProbe& probe) {
    ThreeColumns columns;
    const SMultiArray& velocities = probe.Velocities();
    const auto samples = asSize(probe.WorkingSamples());
    for (std::size_t c = 0; c < columns.size() && !velocities.IsEmpty(); ++c) {
        columns[c] = ColumnSamples::of(velocities.GetAt(asInt(c)));
        if (columns[c].units.size() < samples) {
            throw InvalidArgument();
        }
        columns[c].units = columns[c].units.first(samples);
    }
    return columns;
}

/// (x - mean of x) (y - mean of y) of every sample and pair, stored in the resolution of the pair's column.
void storeProducts(SMultiArray& stresses, const ThreeColumns& columns, const std::array<double, 3>& means,
                   Progress& progress) {
    const std::size_t samples = columns.front().units.size();
    std::array<std::span<std::int32_t>, kStressPairs> stored;
    for (int pair = 0; pair < kStressPairs; ++pair) {
        SArray& column = stresses.ElementAt(pair);
        column.ResizeForOverwrite(samples);
        stored[asSize(pair)] = column.view();
    }
    // Some samples at a time, which stay near for the pairs to come.
    constexpr std::size_t kPart = 4096;
    constexpr std::size_t kPartsPerBreath = 64;
    for (std::size_t first = 0; first < samples; first += kPart) {
        if (first / kPart % kPartsPerBreath == 0) {
            progress.pump();
        }
        const std::size_t count = std::min(kPart, samples - first);
        const auto part = [&](std::size_t c) {
            return UnitColumn{columns[c].units.data() + first, columns[c].scale, means[c]};
        };
        for (std::size_t pair = 0; pair < stored.size(); ++pair) {
            const StressPair& components = kStressPairComponents[pair];
            kernelsInUse().unitProducts(part(asSize(components.first)), part(asSize(components.second)),
                                        stresses.GetAt(asInt(pair)).GetScale(), count, stored[pair].data() + first);
        }
    }
}

}  // namespace

void formStresses(SAdvProbe& probe, StressResolution resolution, Progress& progress) {
    const ThreeColumns columns = workingVelocities(probe);
    const std::array<double, 3> means = columnMeans(columns, progress);
    std::copy(means.begin(), means.end(), probe.scalarResults.begin() + SAdvProbe::kFluctuationMeans);
    progress.pump();

    const SMultiArray& velocities = probe.Velocities();
    SMultiArray& stresses = probe.Stresses();
    stresses.Reshape(kStressPairs, 1.0);
    for (int pair = 0; pair < kStressPairs && !velocities.IsEmpty(); ++pair) {
        const int lender = resolution == StressResolution::SamePosition ? pair : 0;
        stresses.ElementAt(pair).SetScale(velocities.GetAt(lender).GetScale());
    }
    storeProducts(stresses, columns, means, progress);
    progress.pump();

    // The moments are those of the stored products, of the samples that count.
    std::array<SArray, 3> counted = countedColumns(probe, {&stresses.GetAt(0), &stresses.GetAt(1), &stresses.GetAt(2)});
    const std::array<Moments, 3> moments = columnMoments(
        {ColumnSamples::of(counted[0]), ColumnSamples::of(counted[1]), ColumnSamples::of(counted[2])}, progress);
    for (int pair = 0; pair < kStressPairs; ++pair) {
        STimeSeries& series = probe.Series(STimeSeries::UV + pair);
        series.samplingInterval = probe.samplingInterval;
        series.values = std::move(counted[asSize(pair)]);
        series.moments = moments[asSize(pair)];
        probe.SetStressMoments(pair, series.moments);
    }
    probe.stressesFormed = 1;
    progress.pump();
}

void computeStressStatistics(SAdvProbe& probe, Progress& progress) {
    const std::array<Moments, 3> velocities = columnMoments(workingVelocities(probe), progress);
    progress.pump();
    const SMultiArray& stresses = probe.Stresses();
    const std::array<double, 3> means =
        columnMeans({ColumnSamples::of(stresses.GetAt(0)), ColumnSamples::of(stresses.GetAt(1)),
                     ColumnSamples::of(stresses.GetAt(2))},
                    progress);
    for (std::size_t c = 0; c < velocities.size(); ++c) {
        probe.statistics[SAdvProbe::kVelocityVariances + c] = velocities[c].variance;
        probe.statistics[SAdvProbe::kMeanStresses + c] = means[c];
    }
    progress.pump();
}

std::vector<double> workingFluctuation(const SAdvProbe& probe, int component) {
    const SMultiArray& velocities = probe.Velocities();
    std::vector<double> fluctuation(asSize(probe.WorkingSamples()));
    if (velocities.IsEmpty()) {
        return fluctuation;
    }
    const SArray& column = velocities.GetAt(component);
    if (asSize(column.GetSize()) < fluctuation.size()) {
        throw InvalidArgument();
    }
    const double scale = column.GetScale();
    const double mean = probe.scalarResults[SAdvProbe::kFluctuationMeans + asSize(component)];
    std::transform(column.begin(), column.begin() + probe.WorkingSamples(), fluctuation.begin(),
                   [scale, mean](std::int32_t n) { return n * scale - mean; });
    return fluctuation;
}

void prepareStresses(SAdvProbe& probe, Progress& progress) {
    const SMultiArray& stresses = probe.Stresses();
    if (stresses.HasNoValues()) {
        formStresses(probe, StressResolution::StreamwiseU, progress);
    }
    for (int pair = 0; pair < kStressPairs; ++pair) {
        if (stresses.GetAt(pair).GetSize() != probe.WorkingSamples()) {
            throw InvalidArgument();
        }
    }
    computeStressStatistics(probe, progress);
}

}  // namespace vorlan
