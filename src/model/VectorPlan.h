#pragma once

#include <cstddef>

#include "model/Workspace.h"

namespace vorlan {

/// Coordinate planes by their stored code: XY, XZ, YZ.
inline constexpr int kPlaneCount = 3;

/// The two axes of a plane: 0 X, 1 Y, 2 Z.
struct Plane {
    std::size_t first;
    std::size_t second;
};
/// The plane of a stored code; that of the last code for an unknown one.
Plane planeOf(int code);

/// Code of the plane in which the plans are shown: the stored one when the user has chosen it, else the one in which
/// some probe's mean velocity is longest, the first of several.
///
/// A workspace holds no word for a choice: it counts as made when the settings of the plans are not those of a new
/// workspace, or the stage is done for a probe.
int shownPlane(const Workspace& workspace);
/// The settings of the plans with that plane.
VectorSettings shownVectors(const Workspace& workspace);

}  // namespace vorlan
