#include "analysis/AnalysedSeries.h"

#include <algorithm>

namespace vorlan {

namespace {

/// Which of the first samples count, decided once for all columns.
std::vector<int> countedIndexes(const SAdvProbe& probe, int samples) {
    std::vector<int> indexes;
    indexes.reserve(static_cast<std::size_t>(samples));
    const auto marks = probe.sampleFlags.view();
    const bool all = probe.UsesAllSamples();
    for (int i = 0; i < samples; ++i) {
        if (all || (static_cast<std::size_t>(i) < marks.size() && marks[static_cast<std::size_t>(i)] >= 1)) {
            indexes.push_back(i);
        }
    }
    return indexes;
}

SArray picked(const SArray& column, const std::vector<int>& indexes) {
    SArray part(column.GetScale());
    part.ResizeForOverwrite(indexes.size());
    const auto source = column.view();
    std::transform(indexes.begin(), indexes.end(), part.begin(),
                   [source](int i) { return source[static_cast<std::size_t>(i)]; });
    return part;
}

}  // namespace

void formAnalysedSeries(SAdvProbe& probe) {
    const SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    const int samples = probe.WorkingSamples();
    const std::vector<int> indexes = countedIndexes(probe, samples);
    for (int component = 0; component < SAdvProbe::kComponents; ++component) {
        STimeSeries& series = probe.Series(component);
        series.samplingInterval = probe.samplingInterval;
        series.values.RemoveAll();
        if (velocities.IsEmpty()) {
            continue;
        }
        const SArray& column = velocities.GetAt(component);
        if (column.GetSize() < samples) {
            throw InvalidArgument();
        }
        series.values = picked(column, indexes);
    }
}

SArray countedColumn(const SAdvProbe& probe, const SArray& column) {
    return picked(column, countedIndexes(probe, column.GetSize()));
}

std::vector<double> countedValues(const SAdvProbe& probe, const SArray& column) {
    return countedColumn(probe, column).Values();
}

}  // namespace vorlan
