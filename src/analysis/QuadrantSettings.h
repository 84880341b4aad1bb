#pragma once

#include "model/Refusal.h"
#include "model/WorkspaceSettings.h"

namespace vorlan {

/// What the dialog "Conditional Quadrants Analysis and Averaging" edits.
struct QuadrantSettings {
    double increment = 0.2;          ///< step between hole sizes, in mean stresses
    double maximum = 20.0;           ///< upper end of the hole sizes, in mean stresses
    double ejectionThreshold = 1.0;  ///< in mean stresses
    double sweepThreshold = 2.0;     ///< in mean stresses
    double maximumLag = 10.0;        ///< reach of the averaged patterns to either side, s
    int stressType = 1;              ///< 0 u'v', 1 u'w', 2 v'w'

    friend bool operator==(const QuadrantSettings&, const QuadrantSettings&) = default;
};

/// The stored settings; a stress type that does not exist is read as u'w'.
QuadrantSettings quadrantSettingsOf(const WorkspaceSettings& settings);
void storeQuadrantSettings(const QuadrantSettings& dialog, WorkspaceSettings& settings);

/// Why the dialog may not be accepted; empty when it may. The texts promise more than the checks: thresholds of 0, a
/// maximum of 2, a lag of 2 and a negative increment pass.
Refusal refusalOf(const QuadrantSettings& settings);

}  // namespace vorlan
