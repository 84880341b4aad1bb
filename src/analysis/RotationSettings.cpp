#include "analysis/RotationSettings.h"

namespace vorlan {

namespace {
constexpr double kMetresPerMillimetre = 0.001;
constexpr std::uint32_t kEarthCoordinates = 2;
}  // namespace

RotationSettings rotationSettingsOf(const SAdvProbe& probe) {
    RotationSettings settings;
    settings.position = {probe.samplingVolumeX * kMetresPerMillimetre, probe.samplingVolumeY * kMetresPerMillimetre,
                         probe.samplingVolumeZ * kMetresPerMillimetre};
    return settings;
}

const char* coordinateSystemText(const SAdvProbe& probe) {
    return probe.coordinateSystem == kEarthCoordinates ? "Earth ( East, North, Up )" : "Probe( X, Y, Z ) ";
}

}  // namespace vorlan
