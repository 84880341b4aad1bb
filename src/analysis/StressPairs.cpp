#include "analysis/StressPairs.h"

#include <algorithm>

#include "analysis/Stresses.h"

namespace vorlan {

std::vector<double> workingFluctuation(const SAdvProbe& probe, int component) {
    const SMultiArray& velocities = probe.Velocities();
    std::vector<double> fluctuation(static_cast<std::size_t>(probe.WorkingSamples()));
    if (velocities.IsEmpty()) {
        return fluctuation;
    }
    const SArray& column = velocities.GetAt(component);
    if (static_cast<std::size_t>(column.GetSize()) < fluctuation.size()) {
        throw InvalidArgument();
    }
    const double scale = column.GetScale();
    const double mean = probe.scalarResults[SAdvProbe::kFluctuationMeans + static_cast<std::size_t>(component)];
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
