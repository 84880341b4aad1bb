#pragma once

#include <functional>

#include "model/VectorPlan.h"
#include "stages/DiagramParts.h"

namespace vorlan {

/// Room around positions that all lie on one spot, metres.
inline constexpr double kPlanRoom = 0.5;

/// Nodes of a boundary in a plane as a line of points.
PlotSeries boundaryPoints(const SBndFile& boundary, Plane plane);

/// Calls action with every probe, its position in metres and the text that names it in a read-out.
void forEachPlace(const SAdvSet& set,
                  const std::function<void(const SAdvProbe& probe, const std::array<double, 3>& place,
                                           const std::string& detail)>& action);

}  // namespace vorlan
