#pragma once

#include <cstdint>

namespace vorlan {

class Archive;

/// The document block of a workspace: selection and the parameters that the stage dialogs edit. Defaults are those
/// of a new workspace. Mode words hold the stored integers; they are range-checked where they are used.
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
    std::int32_t correlationTest = 0;
    std::int32_t snrTest = 0;
    std::int32_t spikeFilter = 0;
    std::int32_t velocityTest = 0;
    double averageCorrelation = 70.0;  ///< per cent
    double averageSnr = 10.0;          ///< dB
    double minimumCorrelation = 70.0;
    double minimumSnr = 5.0;
    double accelerationThreshold = 1.0;     ///< g
    double velocityThreshold = 3.0;         ///< standard deviations
    std::int32_t correlationStatistic = 0;  ///< 0 average, 1 minimum
    std::int32_t snrStatistic = 0;
    std::int32_t badSampleTreatment = 0;  ///< 0 interpolate, 1 remove
    double filterCutoff = 10.0;           ///< Hz
    double filterHalfWidth = 10.0;        ///< s
    std::int32_t filterType = 0;
    std::int32_t filterShape = 1;
    std::int32_t bandCount = 10;
    std::int32_t bandMode = 0;  ///< 0 fixed, 1 cumulative
    std::int32_t normalApproximation = 1;
    std::int32_t gradeCount = 20;
    std::int32_t barWidth = 90;  ///< per cent
    std::int32_t lagCount = 100;
    std::int32_t truncationMode = 0;  ///< 0 percent, 1 number of lags
    std::int32_t unitButton = 1;      ///< 0 rad/s, 1 Hz
    std::int32_t windowButton = 2;    ///< 0 rectangle, 1 Bartlett, 2 Tukey, 3 Parzen
    std::int32_t lagPercent = 10;
    std::int32_t lastTruncationPoint = 10;
    int lastWindowCode = 0;      ///< choiceC: 0 rectangle, 1 Tukey, 2 Bartlett, 3 Parzen
    bool lastUnitIsRad = false;  ///< switchD
    double holeIncrement = 0.2;
    double holeMaximum = 20.0;
    double ejectionThreshold = 1.0;
    double sweepThreshold = 2.0;
    double maximumTimeLag = 10.0;  ///< s
    std::int32_t quadrantStress = 1;
    std::int32_t planPlane = 2;    ///< 0 XY, 1 XZ, 2 YZ
    std::int32_t planPixels = 50;  ///< an arrow of planSpeed cm/s is this long
    double planSpeed = 10.0;
    double planSmaller = 5.0;           ///< minimum and maximum arrows are this much smaller
    double userMeanVelocity = 10.0;     ///< cm/s
    std::int32_t meanVelocityMode = 0;  ///< 0 averaged, 1 the user's

    /// 56 fields in their stored order. Coded fields out of range keep the value they have.
    void Serialize(Archive& archive);
    friend bool operator==(const WorkspaceSettings&, const WorkspaceSettings&) = default;
};

}  // namespace vorlan
