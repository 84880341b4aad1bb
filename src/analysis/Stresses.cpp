#include "analysis/Stresses.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "analysis/AnalysedSeries.h"
#include "analysis/MomentEstimators.h"
#include "analysis/StressPairs.h"

namespace vorlan {

namespace {

/// The working velocities as values, all of the first column's length.
std::array<std::vector<double>, SAdvProbe::kComponents> workingVelocities(const SAdvProbe& probe) {
    std::array<std::vector<double>, SAdvProbe::kComponents> values;
    const SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    const auto samples = static_cast<std::size_t>(probe.WorkingSamples());
    for (std::size_t c = 0; c < values.size() && !velocities.IsEmpty(); ++c) {
        values[c] = velocities.GetAt(static_cast<int>(c)).Values();
        if (values[c].size() < samples) {
            throw InvalidArgument();
        }
        values[c].resize(samples);
    }
    return values;
}

}  // namespace

void formStresses(SAdvProbe& probe, StressResolution resolution) {
    std::array<std::vector<double>, SAdvProbe::kComponents> fluctuations = workingVelocities(probe);
    for (std::size_t c = 0; c < fluctuations.size(); ++c) {
        const double mean = momentsOf(fluctuations[c]).mean;
        probe.scalarResults[SAdvProbe::kFluctuationMeans + c] = mean;
        fluctuations[c] = deviationsFrom(fluctuations[c], mean);
    }

    const SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    SMultiArray& stresses = probe.workTables[SAdvProbe::kStresses];
    stresses.Reshape(kStressPairs, 1.0);
    std::vector<double> products(fluctuations[0].size());
    for (int pair = 0; pair < kStressPairs; ++pair) {
        const StressPair components = kStressPairComponents[static_cast<std::size_t>(pair)];
        const std::vector<double>& first = fluctuations[static_cast<std::size_t>(components.first)];
        const std::vector<double>& second = fluctuations[static_cast<std::size_t>(components.second)];
        std::transform(first.begin(), first.end(), second.begin(), products.begin(), std::multiplies<>());
        SArray& column = stresses.ElementAt(pair);
        if (!velocities.IsEmpty()) {
            const int lender = resolution == StressResolution::SamePosition ? pair : 0;
            column.SetScale(velocities.GetAt(lender).GetScale());
        }
        column.StoreValues(products);

        // The moments are those of the stored products, of the samples that count.
        STimeSeries& series = probe.Series(STimeSeries::UV + pair);
        series.samplingInterval = probe.samplingInterval;
        series.values = countedColumn(probe, column);
        series.moments = momentsOf(series.values.Values());
        probe.SetStressMoments(pair, series.moments);
    }
    probe.stressesFormed = 1;
}

void computeStressStatistics(SAdvProbe& probe) {
    const auto velocities = workingVelocities(probe);
    const SMultiArray& stresses = probe.workTables[SAdvProbe::kStresses];
    for (std::size_t c = 0; c < velocities.size(); ++c) {
        probe.statistics[SAdvProbe::kVelocityVariances + c] = momentsOf(velocities[c]).variance;
    }
    for (int pair = 0; pair < kStressPairs; ++pair) {
        probe.statistics[SAdvProbe::kMeanStresses + static_cast<std::size_t>(pair)] =
            momentsOf(stresses.GetAt(pair).Values()).mean;
    }
}

}  // namespace vorlan
