#include "analysis/AnalysedSeries.h"

#include <algorithm>
#include <optional>

#include "model/Index.h"

namespace vorlan {

namespace {

/// Which of the first samples count, decided once for all columns.
class CountedSamples {
  public:
    CountedSamples(const SAdvProbe& probe, int samples) : samples_(samples), all_(probe.UsesAllSamples()) {
        if (all_) {
            return;
        }
        const auto marks = probe.sampleFlags.view();
        const auto marked = std::min(asSize(samples), marks.size());
        for (std::size_t i = 0; i < marked; ++i) {
            if (marks[i] >= 1) {
                indexes_.push_back(i);
            }
        }
    }

    int size() const { return all_ ? samples_ : asInt(indexes_.size()); }

    SArray of(const SArray& column) const {
        if (all_ && column.GetSize() == samples_) {
            return column;
        }
        SArray part(column.GetScale());
        const auto source = column.view();
        part.ResizeForOverwrite(all_ ? asSize(samples_) : indexes_.size());
        if (all_) {
            std::copy_n(source.begin(), samples_, part.begin());
        } else {
            std::transform(indexes_.begin(), indexes_.end(), part.begin(),
                           [source](std::size_t i) { return source[i]; });
        }
        return part;
    }

  private:
    int samples_;
    bool all_;
    std::vector<std::size_t> indexes_;
};

}  // namespace

void formAnalysedSeries(SAdvProbe& probe) {
    const SMultiArray& velocities = probe.Velocities();
    const int samples = probe.WorkingSamples();
    const CountedSamples counted(probe, samples);
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
        series.values = counted.of(column);
    }
}

int countedSamples(const SAdvProbe& probe) {
    return CountedSamples(probe, probe.WorkingSamples()).size();
}

std::array<SArray, 3> countedColumns(const SAdvProbe& probe, const std::array<const SArray*, 3>& columns) {
    std::array<SArray, 3> counted;
    std::optional<CountedSamples> samples;
    int size = 0;
    for (std::size_t c = 0; c < columns.size(); ++c) {
        if (columns[c] == nullptr) {
            continue;
        }
        if (!samples || columns[c]->GetSize() != size) {
            size = columns[c]->GetSize();
            samples.emplace(probe, size);
        }
        counted[c] = samples->of(*columns[c]);
    }
    return counted;
}

}  // namespace vorlan
