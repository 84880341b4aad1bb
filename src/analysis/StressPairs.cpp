#include "analysis/StressPairs.h"

#include "analysis/MomentEstimators.h"
#include "analysis/Stresses.h"

namespace vorlan {

std::array<std::vector<double>, SAdvProbe::kComponents> workingFluctuations(const SAdvProbe& probe) {
    std::array<std::vector<double>, SAdvProbe::kComponents> fluctuations;
    const SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    const auto samples = static_cast<std::size_t>(probe.WorkingSamples());
    for (std::size_t c = 0; c < fluctuations.size() && !velocities.IsEmpty(); ++c) {
        std::vector<double> values = velocities.GetAt(static_cast<int>(c)).Values();
        if (values.size() < samples) {
            throw InvalidArgument();
        }
        values.resize(samples);
        fluctuations[c] = deviationsFrom(values, probe.scalarResults[SAdvProbe::kFluctuationMeans + c]);
    }
    return fluctuations;
}

void prepareStresses(SAdvProbe& probe) {
    const SMultiArray& stresses = probe.workTables[SAdvProbe::kStresses];
    if (stresses.HasNoValues()) {
        formStresses(probe, StressResolution::StreamwiseU);
    }
    for (int pair = 0; pair < kStressPairs; ++pair) {
        if (stresses.GetAt(pair).GetSize() != probe.WorkingSamples()) {
            throw InvalidArgument();
        }
    }
    computeStressStatistics(probe);
}

}  // namespace vorlan
