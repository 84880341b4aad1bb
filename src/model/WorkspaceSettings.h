#pragma once

#include <cstdint>

#include "model/StageSettings.h"

namespace vorlan {

class Archive;

/// The document block of a workspace: selection and parameters. Defaults are those of a new workspace. Mode words hold
/// the stored integers; they are range-checked where they are used.
struct WorkspaceSettings {
    std::int32_t activeFile = -1;
    std::int32_t activeProbe = -1;
    std::int32_t activeItem = -1;  ///< index of the selected stage tab
    std::int32_t previousFile = -1;
    std::int32_t previousProbe = -1;
    std::int32_t previousItem = -1;
    int choiceA = 0;  ///< stage code: 0 none, else stage number + 1
    int choiceB = 0;  ///< stage code at the last change test

    std::int32_t physicalValue = 0;  ///< 0 velocities, 1 stresses
    std::int32_t activeView = 0;     ///< pane: 0 left top, 1 left bottom, 2 right top, 3 right bottom
    std::int32_t reservedA2 = 0;
    std::int32_t reservedA3 = 0;
    std::int32_t displaySwitch = 0;  ///< 1: the right bottom pane shows the table, 0: its diagram
    std::int32_t reservedA5 = 1;
    EditingSettings editing;
    FilterSettings filter;
    StationaritySettings stationarity;
    HistogramSettings histograms;
    SpectralSettings spectral;
    std::int32_t lastTruncationPoint = 10;
    int lastWindowCode = 0;      ///< choiceC: 0 rectangle, 1 Tukey, 2 Bartlett, 3 Parzen
    bool lastUnitIsRad = false;  ///< switchD
    QuadrantSettings quadrants;
    VectorSettings vectors;
    MeanVelocitySettings meanVelocity;
    bool planChosen = false;  ///< not stored: the plane of the plans was chosen since the workspace was read

    /// 56 fields in their stored order. Coded fields out of range keep the value they have.
    void Serialize(Archive& archive);
    friend bool operator==(const WorkspaceSettings&, const WorkspaceSettings&) = default;
};

}  // namespace vorlan
