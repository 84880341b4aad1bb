#include "analysis/StationaritySettings.h"

namespace vorlan {

StationaritySettings stationaritySettingsOf(const WorkspaceSettings& settings) {
    return {settings.bandMode == 1 ? BandMode::Cumulative : BandMode::Fixed, settings.bandCount};
}

void storeStationaritySettings(const StationaritySettings& dialog, WorkspaceSettings& settings) {
    settings.bandMode = static_cast<std::int32_t>(dialog.mode);
    settings.bandCount = dialog.bands;
}

std::string refusalOf(const StationaritySettings& settings) {
    return settings.bands < 2 ? "Band number should be larger than 1!" : "";
}

}  // namespace vorlan
