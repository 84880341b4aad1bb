#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/SAdvProbe.h"

namespace vorlan {

/// Mean U, V, W (cm/s) of the working record over the samples that count; not finite without any.
std::array<double, 3> meanVelocities(const SAdvProbe& probe);

/// The same; not numbers for a record whose columns do not belong together.
std::array<double, 3> meanFlow(const SAdvProbe& probe);

/// False for a record whose columns do not belong together.
bool hasWholeRecord(const SAdvProbe& probe);

/// Lowest and highest U, V, W (cm/s) of the working samples that count; not numbers where there are none.
struct VelocityExtremes {
    std::array<double, 3> lowest;
    std::array<double, 3> highest;
};
VelocityExtremes velocityExtremes(const SAdvProbe& probe);

/// Directions of the mean flow, degrees: atan2(V, U), atan2(W, U), atan2(W, V).
struct FlowDirections {
    double heading = 0.0;
    double roll = 0.0;
    double pitch = 0.0;
};
FlowDirections meanFlowDirections(const std::array<double, 3>& meanVelocity);

/// The lines of the probe information panel, top to bottom.
std::vector<std::string> probeInformation(const SAdvProbe& probe);

/// "Probe 1" or "Burst 1", as the probes selector lists it.
std::string probeListText(const SAdvProbe& probe);

}  // namespace vorlan
