#pragma once

#include <array>

#include "model/SAdvProbe.h"

namespace vorlan {

/// What the dialog "Coordinate System" edits. The angles are applied whether rotating is ticked or not, so the box
/// is the dialog's own. Nothing of it is kept with the workspace, and any value is accepted.
struct RotationSettings {
    double heading = 0.0;              ///< degrees, turns U towards V
    double pitch = 0.0;                ///< degrees, turns V towards W
    double roll = 0.0;                 ///< degrees, turns U towards W
    std::array<double, 3> position{};  ///< sampling volume X, Y, Z, m
};

/// Angles 0 and the probe's position in metres.
RotationSettings rotationSettingsOf(const SAdvProbe& probe);

/// "Earth ( East, North, Up )" or "Probe( X, Y, Z ) ".
const char* coordinateSystemText(const SAdvProbe& probe);

}  // namespace vorlan
