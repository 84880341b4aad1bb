#include "analysis/RotationSettings.h"

namespace vorlan {

namespace {
constexpr std::uint32_t kEarthCoordinates = 2;
}  // namespace

RotationSettings rotationSettingsOf(const SAdvProbe& probe) {
    RotationSettings settings;
    settings.position = probe.Position();
    return settings;
}

const char* coordinateSystemText(const SAdvProbe& probe) {
    return probe.coordinateSystem == kEarthCoordinates ? "Earth ( East, North, Up )" : "Probe( X, Y, Z ) ";
}

}  // namespace vorlan
