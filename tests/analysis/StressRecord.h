#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <ostream>
#include <vector>

#include "model/SAdvProbe.h"

/// Records with correlated components for the tests of the stress analyses, and the plain arithmetic that the results
/// are compared with.
namespace vorlan::stress_test {

inline constexpr double kPi = 3.141592653589;
inline constexpr int kFirst[3] = {0, 0, 1};
inline constexpr int kSecond[3] = {1, 2, 2};

using Columns = std::array<std::vector<double>, 3>;

/// The integer that a column of this resolution holds for v.
inline std::int32_t held(double v, double resolution) {
    const double quotient = v / resolution;
    if (std::isnan(quotient) || quotient >= 2147483648.0 || quotient <= -2147483649.0) {
        return std::numeric_limits<std::int32_t>::min();
    }
    return static_cast<std::int32_t>(quotient);
}

inline std::vector<std::int32_t> integers(const SArray& column) {
    return {column.begin(), column.end()};
}

/// A probe whose components share a slow wave and noise; the sign of coupling is that of u'w' and the opposite of
/// that of v'w'. The three columns have three resolutions.
inline SAdvProbe correlatedProbe(int samples, double coupling) {
    SAdvProbe probe;
    probe.samplingInterval = 0.04;
    SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    velocities.Reshape(3, 1.0);
    const std::array<double, 3> resolutions = {0.1, 0.05, 0.02};
    std::uint32_t state = 12345;
    const auto noise = [&state] {
        state = state * 1664525U + 1013904223U;
        return (state >> 8) / 16777216.0 - 0.5;
    };
    for (int c = 0; c < 3; ++c) {
        velocities.ElementAt(c).SetScale(resolutions[static_cast<std::size_t>(c)]);
    }
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

inline double meanOf(const std::vector<double>& values) {
    double sum = 0.0;
    for (const double v : values) {
        sum += v;
    }
    return sum / static_cast<double>(values.size());
}

/// Fluctuations of the working velocities about their means over all samples.
inline Columns fluctuationsOf(const SAdvProbe& probe) {
    Columns columns;
    for (int c = 0; c < 3; ++c) {
        std::vector<double>& column = columns[static_cast<std::size_t>(c)];
        const SArray& source = probe.workTables[0].GetAt(c);
        for (int j = 0; j < source.GetSize(); ++j) {
            column.push_back(source.GetAt(j) * source.GetScale());
        }
        const double mean = meanOf(column);
        for (double& v : column) {
            v -= mean;
        }
    }
    return columns;
}

}  // namespace vorlan::stress_test
