#include "analysis/ProbeMoments.h"

#include "analysis/AnalysedSeries.h"
#include "analysis/MomentEstimators.h"

namespace vorlan {

namespace {
// Two samples have a variance, but no shape.
constexpr std::size_t kTooFewSamples = 2;
}  // namespace

std::array<Moments, 3> probeMoments(const SAdvProbe& probe) {
    std::array<Moments, 3> moments{};
    const SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    if (velocities.IsEmpty()) {
        return moments;
    }
    for (int component = 0; component < SAdvProbe::kComponents; ++component) {
        const std::vector<double> values = countedValues(probe, velocities.GetAt(component));
        if (values.size() > kTooFewSamples) {
            moments[static_cast<std::size_t>(component)] = momentsOf(values);
        }
    }
    return moments;
}

void computeProbeMoments(SAdvProbe& probe) {
    const std::array<Moments, 3> moments = probeMoments(probe);
    for (int component = 0; component < SAdvProbe::kComponents; ++component) {
        probe.SetVelocityMoments(component, moments[static_cast<std::size_t>(component)]);
    }
}

}  // namespace vorlan
