#include "model/ProbeInformation.h"

#include <cmath>

#include "model/Angles.h"
#include "model/Text.h"

namespace vorlan {

std::array<double, 3> meanVelocities(const SAdvProbe& probe) {
    std::array<double, 3> sums{};
    const SMultiArray& velocities = probe.Velocities();
    int count = 0;
    for (int i = 0; i < probe.WorkingSamples(); ++i) {
        if (!probe.Counts(i)) {
            continue;
        }
        for (int c = 0; c < SAdvProbe::kComponents; ++c) {
            sums[static_cast<std::size_t>(c)] += velocities.GetAt(c).GetValue(i);
        }
        ++count;
    }
    for (double& sum : sums) {
        sum /= count;
    }
    return sums;
}

FlowDirections meanFlowDirections(const std::array<double, 3>& meanVelocity) {
    const auto [u, v, w] = meanVelocity;
    return {std::atan2(v, u) * 180.0 / kPi, std::atan2(w, u) * 180.0 / kPi, std::atan2(w, v) * 180.0 / kPi};
}

std::vector<std::string> probeInformation(const SAdvProbe& probe) {
    const FlowDirections directions = meanFlowDirections(meanVelocities(probe));
    const std::array<double, 3> position = probe.Position();
    return {
        "Current measuring point:",
        "Sampling Volume Coordinates:",
        formatted("X = %.2f     Y = %.2f     Z = %.2f", position[0], position[1], position[2]),
        "Mean Flow Direction [deg]:",
        formatted("Heading = %.2f", directions.heading),
        formatted("Roll        = %.2f", directions.roll),
        formatted("Pitch      = %.2f", directions.pitch),
        "*Probe's XYZ coordinate system",
    };
}

std::string probeListText(const SAdvProbe& probe) {
    return formatted(probe.isProbe != 0 ? "Probe %d" : "Burst %d", static_cast<int>(probe.probeNumber));
}

}  // namespace vorlan
