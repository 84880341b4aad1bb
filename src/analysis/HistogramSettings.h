#pragma once

#include "model/Refusal.h"
#include "model/WorkspaceSettings.h"

namespace vorlan {

/// What the dialog "Univariate Distributions | Histogram Parameters" edits.
struct HistogramSettings {
    int grades = 20;
    int barWidth = 90;  ///< per cent of the grade width
    bool normalApproximation = true;
};

HistogramSettings histogramSettingsOf(const WorkspaceSettings& settings);
void storeHistogramSettings(const HistogramSettings& dialog, WorkspaceSettings& settings);

/// Why the dialog may not be accepted; empty when it may.
Refusal refusalOf(const HistogramSettings& settings);

}  // namespace vorlan
