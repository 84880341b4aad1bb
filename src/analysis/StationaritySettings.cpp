#include "analysis/StationaritySettings.h"

namespace vorlan {

StationaritySettings stationaritySettingsOf(const WorkspaceSettings& settings) {
    return {settings.bandMode == 1 ? BandMode::Cumulative : BandMode::Fixed, settings.bandCount};
}

void storeStationaritySettings(const StationaritySettings& dialog, WorkspaceSettings& settings) {
    settings.bandMode = static_cast<std::int32_t>(dialog.mode);
    settings.bandCount = dialog.bands;
}

Refusal refusalOf(const StationaritySettings& settings) {
    return settings.bands < 2 ? Refusal{"Band number should be larger than 1!", "bands"} : Refusal{};
}

}  // namespace vorlan
