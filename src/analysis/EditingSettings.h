#pragma once

#include "model/WorkspaceSettings.h"

namespace vorlan {

/// Which of a sample's three beam scores is compared with the threshold.
enum class ScoreStatistic : int { Average = 0, Minimum = 1 };

enum class BadSampleTreatment : int { Interpolate = 0, Remove = 1 };

/// One test of the beam scores: the threshold is that of the chosen statistic.
struct ScoreTest {
    bool on = false;
    ScoreStatistic statistic = ScoreStatistic::Average;
    double averageThreshold = 70.0;
    double minimumThreshold = 70.0;

    double threshold() const { return statistic == ScoreStatistic::Minimum ? minimumThreshold : averageThreshold; }
};

/// What the dialog "Editing Time Series" edits. Every number is accepted.
struct EditingSettings {
    ScoreTest correlation{false, ScoreStatistic::Average, 70.0, 70.0};   ///< per cent
    ScoreTest signalToNoise{false, ScoreStatistic::Average, 10.0, 5.0};  ///< dB
    bool spikeFilter = false;
    double accelerationThreshold = 1.0;  ///< g
    bool velocityTest = false;
    double velocityThreshold = 3.0;  ///< standard deviations
    BadSampleTreatment treatment = BadSampleTreatment::Interpolate;
};

EditingSettings editingSettingsOf(const WorkspaceSettings& settings);
void storeEditingSettings(const EditingSettings& dialog, WorkspaceSettings& settings);

}  // namespace vorlan
