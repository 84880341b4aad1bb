#include "model/ProbeInformation.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "model/Angles.h"
#include "model/Errors.h"
#include "model/Index.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// Calls action with the index of every working sample that counts.
template <class Action>
void forEachCounted(const SAdvProbe& probe, Action action) {
    const auto samples = asSize(probe.WorkingSamples());
    if (probe.UsesAllSamples()) {
        for (std::size_t i = 0; i < samples; ++i) {
            action(i);
        }
        return;
    }
    const std::span<const std::int32_t> marks = probe.sampleFlags.view();
    for (std::size_t i = 0; i < std::min(samples, marks.size()); ++i) {
        if (marks[i] >= 1) {
            action(i);
        }
    }
}

}  // namespace

bool hasWholeRecord(const SAdvProbe& probe) {
    const SMultiArray& table = probe.Velocities();
    return table.GetSize() >= SAdvProbe::kComponents &&
           std::all_of(table.begin(), table.end(),
                       [&](const SArray& column) { return column.GetSize() >= probe.WorkingSamples(); });
}

std::array<double, 3> meanVelocities(const SAdvProbe& probe) {
    std::array<double, 3> sums{};
    const SMultiArray& velocities = probe.Velocities();
    int count = 0;
    if (probe.WorkingSamples() > 0) {
        std::array<std::span<const std::int32_t>, 3> units;
        std::array<double, 3> scales{};
        for (std::size_t c = 0; c < sums.size(); ++c) {
            const SArray& column = velocities.GetAt(asInt(c));
            if (column.GetSize() < probe.WorkingSamples()) {
                throw InvalidArgument();
            }
            units[c] = column.view();
            scales[c] = column.GetScale();
        }
        forEachCounted(probe, [&](std::size_t i) {
            for (std::size_t c = 0; c < sums.size(); ++c) {
                sums[c] += units[c][i] * scales[c];
            }
            ++count;
        });
    }
    for (double& sum : sums) {
        sum /= count;
    }
    return sums;
}

std::array<double, 3> meanFlow(const SAdvProbe& probe) {
    return hasWholeRecord(probe) ? meanVelocities(probe) : std::array{kNaN, kNaN, kNaN};
}

VelocityExtremes velocityExtremes(const SAdvProbe& probe) {
    VelocityExtremes extremes{{kNaN, kNaN, kNaN}, {kNaN, kNaN, kNaN}};
    if (!hasWholeRecord(probe)) {
        return extremes;
    }
    for (std::size_t c = 0; c < extremes.lowest.size(); ++c) {
        const SArray& column = probe.Velocities().GetAt(asInt(c));
        const std::span<const std::int32_t> units = column.view();
        std::int32_t lowest = std::numeric_limits<std::int32_t>::max();
        std::int32_t highest = std::numeric_limits<std::int32_t>::min();
        forEachCounted(probe, [&](std::size_t i) {
            lowest = std::min(lowest, units[i]);
            highest = std::max(highest, units[i]);
        });
        if (lowest <= highest) {
            extremes.lowest[c] = lowest * column.GetScale();
            extremes.highest[c] = highest * column.GetScale();
        }
    }
    return extremes;
}

FlowDirections meanFlowDirections(const std::array<double, 3>& meanVelocity) {
    const auto [u, v, w] = meanVelocity;
    return {std::atan2(v, u) * 180.0 / kPi, std::atan2(w, u) * 180.0 / kPi, std::atan2(w, v) * 180.0 / kPi};
}

std::vector<std::string> probeInformation(const SAdvProbe& probe) {
    const FlowDirections directions = meanFlowDirections(meanVelocities(probe));
    const std::array<double, 3> position = probe.Position();
    const auto shown = [](double value) { return numberText(value, 2); };
    return {
        "Current measuring point:",
        "Sampling Volume Coordinates:",
        "X = " + shown(position[0]) + "     Y = " + shown(position[1]) + "     Z = " + shown(position[2]),
        "Mean Flow Direction [deg]:",
        "Heading = " + shown(directions.heading),
        "Roll        = " + shown(directions.roll),
        "Pitch      = " + shown(directions.pitch),
        "*Probe's XYZ coordinate system",
    };
}

std::string probeListText(const SAdvProbe& probe) {
    return formatted(probe.isProbe != 0 ? "Probe %d" : "Burst %d", asInt(probe.probeNumber));
}

}  // namespace vorlan
