#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "model/DefaultFrames.h"
#include "model/SAdvProbe.h"
#include "model/StoreValue.h"

/// Records for tests, and the plain arithmetic that results are compared with.
namespace vorlan::test {

inline constexpr double kWrittenPi = 3.141592653589;
inline constexpr int kFirst[3] = {0, 0, 1};  ///< components of the stresses
inline constexpr int kSecond[3] = {1, 2, 2};

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

/// The integer that a column of this resolution holds for v.
inline std::int32_t held(double v, double resolution) {
    return truncateToInt32(v / resolution);
}

inline double meanOf(const std::vector<double>& values) {
    double sum = 0.0;
    for (const double v : values) {
        sum += v;
    }
    return sum / static_cast<double>(values.size());
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

/// A probe of a few samples in integers, each component in its resolution; every sample counts.
inline SAdvProbe probeOf(const std::array<std::vector<std::int32_t>, 3>& units,
                         const std::array<double, 3>& scales = {1.0, 1.0, 1.0}) {
    SAdvProbe probe;
    probe.samplingInterval = 0.5;
    for (std::size_t c = 0; c < 3; ++c) {
        probe.workTables[SAdvProbe::kVelocities].Add(columnOf(units[c], scales[c]));
    }
    probe.sampleFlags.SetSize(static_cast<int>(units[0].size()));
    std::fill(probe.sampleFlags.begin(), probe.sampleFlags.end(), 1);
    return probe;
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

/// A probe whose components share a slow wave and noise; the sign of coupling is that of u'w' and the opposite of
/// that of v'w'. The three columns have three resolutions.
inline SAdvProbe correlatedProbe(int samples, double coupling) {
    SAdvProbe probe = probeOf({}, {0.1, 0.05, 0.02});
    probe.samplingInterval = 0.04;
    SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    std::uint32_t state = 12345;
    const auto noise = [&state] {
        state = state * 1664525U + 1013904223U;
        return (state >> 8) / 16777216.0 - 0.5;
    };
    for (int j = 0; j < samples; ++j) {
        const double u = 8.0 * noise() + 3.0 * std::sin(0.3 * j);
        const double v = -coupling * u + 6.0 * noise() + 2.0 * std::cos(0.3 * j);
        const double w = coupling * u + 2.0 * noise();
        velocities.ElementAt(0).AddValue(-90.0 + u);
        velocities.ElementAt(1).AddValue(4.0 + v);
        velocities.ElementAt(2).AddValue(-6.0 + w);
        probe.sampleFlags.Add(1);
    }
    return probe;
}

/// The lag windows 0..3 (rectangle, Tukey, Bartlett, Parzen) at lag k.
inline double plainLagWindow(int code, int k, double length) {
    const double x = k / length;
    switch (code) {
        case 1:
            return 0.5 * (1.0 + std::cos(kWrittenPi * k / length));
        case 2:
            return 1.0 - x;
        case 3:
            return k > length / 2 ? 2 * (1 - x) * (1 - x) * (1 - x) : 1 - 6 * x * x + 6 * x * x * x;
        default:
            return 1.0;
    }
}

inline SArray& velocity(SAdvProbe& probe, int component) {
    return probe.workTables[SAdvProbe::kVelocities].ElementAt(component);
}

/// Fluctuations of the working velocities about their means over all samples.
inline std::array<std::vector<double>, 3> fluctuationsOf(const SAdvProbe& probe) {
    std::array<std::vector<double>, 3> columns;
    for (std::size_t c = 0; c < 3; ++c) {
        columns[c] = probe.workTables[SAdvProbe::kVelocities].GetAt(static_cast<int>(c)).Values();
        const double mean = meanOf(columns[c]);
        for (double& v : columns[c]) {
            v -= mean;
        }
    }
    return columns;
}

}  // namespace vorlan::test
