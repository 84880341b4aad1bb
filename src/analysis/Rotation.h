#pragma once

#include "analysis/Progress.h"
#include "analysis/RotationSettings.h"
#include "model/SAdvProbe.h"

namespace vorlan {

/// Rotates every working sample: the pair (U, V) by heading, then (V, W) by pitch, then (U, W) by roll, degrees. Each
/// turn is stored (truncated to the column's resolution) and the next reads what was stored; an angle of exactly 0
/// leaves its pair as it is. InvalidArgument when V or W is shorter than U.
void rotateProbe(SAdvProbe& probe, double heading, double pitch, double roll, Progress& progress = noProgress());

/// What an accepted dialog does to the probe: its position in millimetres, the rotation, the stresses and moments, and
/// "New Coordinate System" as frame title and caption, whatever the angles.
void changeCoordinateSystem(SAdvProbe& probe, const RotationSettings& settings, Progress& progress = noProgress());

}  // namespace vorlan
