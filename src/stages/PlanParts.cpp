#include "stages/PlanParts.h"

#include <algorithm>

#include "model/Index.h"
#include "model/ProbeInformation.h"
#include "model/SSvmSet.h"
#include "model/Text.h"

namespace vorlan {

namespace {
constexpr int kBoundaryColour = 4;
}

PlotSeries boundaryPoints(const SBndFile& boundary, Plane plane) {
    const SArray& first = boundary.Axis(plane.first);
    const SArray& second = boundary.Axis(plane.second);
    PlotSeries points;
    points.attributes.colour = seriesColour(kBoundaryColour);
    for (int node = 0; node < std::min(first.GetSize(), second.GetSize()); ++node) {
        points.x.values.push_back(first.GetValue(node));
        points.y.push_back(second.GetValue(node));
    }
    return points;
}

void forEachPlace(const SAdvSet& set,
                  const std::function<void(const SAdvProbe& probe, const std::array<double, 3>& place,
                                           const std::string& detail)>& action) {
    SSvmSet volumes;
    volumes.Build(set);
    for (int f = 0; f < set.files.GetSize(); ++f) {
        const SSvmFile& places = volumes.files().at(asSize(f));
        const std::string name = utf8Text(places.name);
        const SAdvProbesArray& probes = set.files.GetAt(f).probes;
        for (int p = 0; p < probes.GetSize(); ++p) {
            std::array<double, 3> place{};
            for (std::size_t axis = 0; axis < place.size(); ++axis) {
                place[axis] = places.Axis(axis).GetValue(p);
            }
            action(probes.GetAt(p), place,
                   name + ", " + probeListText(probes.GetAt(p)) +
                       formatted("   X: %.3f m   Y: %.3f m   Z: %.3f m", place[0], place[1], place[2]));
        }
    }
}

}  // namespace vorlan
