#include "model/VectorPlan.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "model/Index.h"
#include "model/ProbeInformation.h"

namespace vorlan {

namespace {

constexpr std::array<Plane, kPlaneCount> kPlanes = {{{0, 1}, {0, 2}, {1, 2}}};

bool knownPlane(int code) {
    return code >= 0 && code < kPlaneCount;
}

bool planeWasChosen(const Workspace& workspace) {
    if (workspace.settings.planChosen || !(workspace.settings.vectors == VectorSettings())) {
        return true;
    }
    const auto done = [](const SAdvProbe& probe) { return probe.IsDone(DoneMark::MeanVelocity); };
    return std::any_of(workspace.dataFiles.files.begin(), workspace.dataFiles.files.end(),
                       [&](const SAdvFile& file) { return std::any_of(file.probes.begin(), file.probes.end(), done); });
}

}  // namespace

Plane planeOf(int code) {
    return kPlanes[knownPlane(code) ? asSize(code) : kPlanes.size() - 1];
}

int shownPlane(const Workspace& workspace) {
    const int stored = usable(workspace.settings.vectors).plane;
    if (planeWasChosen(workspace)) {
        return stored;
    }
    std::array<double, kPlaneCount> longest{};
    for (const SAdvFile& file : workspace.dataFiles.files) {
        for (const SAdvProbe& probe : file.probes) {
            const std::array<double, 3> mean = meanFlow(probe);
            for (std::size_t i = 0; i < longest.size(); ++i) {
                const double length = std::hypot(mean[kPlanes[i].first], mean[kPlanes[i].second]);
                // Written so that no length that is not a number passes.
                longest[i] = length > longest[i] ? length : longest[i];
            }
        }
    }
    const auto best = std::max_element(longest.begin(), longest.end());
    return *best > 0.0 ? asInt(best - longest.begin()) : stored;
}

VectorSettings shownVectors(const Workspace& workspace) {
    VectorSettings settings = workspace.settings.vectors;
    settings.plane = shownPlane(workspace);
    return settings;
}

}  // namespace vorlan
