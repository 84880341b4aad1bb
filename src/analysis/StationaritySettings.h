#pragma once

#include "model/Refusal.h"
#include "model/WorkspaceSettings.h"

namespace vorlan {

enum class BandMode : int { Fixed = 0, Cumulative = 1 };

/// What the dialog "Stationarity Analysis | Parameters" edits.
struct StationaritySettings {
    BandMode mode = BandMode::Fixed;
    int bands = 10;
};

StationaritySettings stationaritySettingsOf(const WorkspaceSettings& settings);
void storeStationaritySettings(const StationaritySettings& dialog, WorkspaceSettings& settings);

/// Why the dialog may not be accepted; empty when it may.
Refusal refusalOf(const StationaritySettings& settings);

}  // namespace vorlan
