#include "analysis/ProbeMoments.h"

#include "analysis/AnalysedSeries.h"
#include "analysis/MomentEstimators.h"
#include "model/Index.h"

namespace vorlan {

namespace {

// Two samples have a variance, but no shape.
constexpr int kTooFewSamples = 2;

ThreeColumns samplesOf(const std::array<SArray, 3>& columns) {
    return {ColumnSamples::of(columns[0]), ColumnSamples::of(columns[1]), ColumnSamples::of(columns[2])};
}

}  // namespace

std::array<Moments, 3> countedMoments(const SAdvProbe& probe, const std::array<const SArray*, 3>& columns) {
    return columnMoments(samplesOf(countedColumns(probe, columns)));
}

std::array<Moments, 3> probeMoments(const SAdvProbe& probe, Progress& progress) {
    const SMultiArray& velocities = probe.Velocities();
    if (velocities.IsEmpty()) {
        return {};
    }
    const std::array<SArray, 3> columns =
        countedColumns(probe, {&velocities.GetAt(0), &velocities.GetAt(1), &velocities.GetAt(2)});
    std::array<Moments, 3> moments = columnMoments(samplesOf(columns), progress);
    for (std::size_t c = 0; c < moments.size(); ++c) {
        if (columns[c].GetSize() <= kTooFewSamples) {
            moments[c] = {};
        }
    }
    return moments;
}

void computeProbeMoments(SAdvProbe& probe, Progress& progress) {
    const std::array<Moments, 3> moments = probeMoments(probe, progress);
    for (int component = 0; component < SAdvProbe::kComponents; ++component) {
        probe.SetVelocityMoments(component, moments[asSize(component)]);
    }
    progress.pump();
}

}  // namespace vorlan
