#pragma once

#include <cstdint>
#include <vector>

#include "model/DefaultFrames.h"
#include "model/SAdvProbe.h"

namespace vorlan::test {

/// Repeatable integers low..high.
class Numbers {
  public:
    explicit Numbers(std::uint32_t seed) : state_(seed) {}
    std::int32_t next(std::int32_t low, std::int32_t high) {
        state_ = state_ * 1664525U + 1013904223U;
        return low + static_cast<std::int32_t>((state_ >> 8) % static_cast<std::uint32_t>(high - low + 1));
    }

  private:
    std::uint32_t state_;
};

inline std::vector<std::int32_t> unitsOf(const SArray& column) {
    return {column.begin(), column.end()};
}

inline SArray columnOf(const std::vector<std::int32_t>& units, double scale) {
    SArray column(scale);
    for (const std::int32_t n : units) {
        column.Add(n);
    }
    return column;
}

inline SMultiArray tableOf(Numbers& numbers, int columns, int samples, double scale, std::int32_t low,
                           std::int32_t high) {
    SMultiArray table;
    for (int c = 0; c < columns; ++c) {
        SArray column(scale);
        for (int i = 0; i < samples; ++i) {
            column.Add(numbers.next(low, high));
        }
        table.Add(column);
    }
    return table;
}

/// A probe with every table filled, sampled and working ones alike. The velocity columns have resolutions of their own
/// (0.001, 0.01, 0.002), so that a mix-up shows.
inline SAdvProbe velocityRecord(int samples, std::uint32_t seed = 1) {
    Numbers numbers(seed);
    SAdvProbe probe;
    probe.samplingInterval = 0.04;
    probe.sampleCount = static_cast<std::uint32_t>(samples);
    probe.sampledTables[SAdvProbe::kVelocities] = tableOf(numbers, 3, samples, 0.001, -60000, 60000);
    probe.sampledTables[SAdvProbe::kVelocities].ElementAt(1).SetScale(0.01);
    probe.sampledTables[SAdvProbe::kVelocities].ElementAt(2).SetScale(0.002);
    probe.sampledTables[SAdvProbe::kCorrelation] = tableOf(numbers, 3, samples, 0.1, 550, 1000);
    probe.sampledTables[SAdvProbe::kSignalToNoise] = tableOf(numbers, 3, samples, 0.1, 30, 300);
    probe.sampledTables[SAdvProbe::kSampledCompass] = tableOf(numbers, 3, samples, 0.1, 0, 3600);
    probe.sampledTables[SAdvProbe::kSampledPressure] = tableOf(numbers, 1, samples, 0.1, 0, 100);
    probe.Reset();
    createDefaultFrames(probe);
    probe.tabItems.AppendStage(0);
    probe.selectedTab = 0;
    return probe;
}

inline SArray& velocity(SAdvProbe& probe, int component) {
    return probe.workTables[SAdvProbe::kVelocities].ElementAt(component);
}

}  // namespace vorlan::test
