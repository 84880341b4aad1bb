#include "analysis/HistogramSettings.h"

namespace vorlan {

HistogramSettings histogramSettingsOf(const WorkspaceSettings& settings) {
    return {settings.gradeCount, settings.barWidth, settings.normalApproximation != 0};
}

void storeHistogramSettings(const HistogramSettings& dialog, WorkspaceSettings& settings) {
    settings.gradeCount = dialog.grades;
    settings.barWidth = dialog.barWidth;
    settings.normalApproximation = dialog.normalApproximation ? 1 : 0;
}

Refusal refusalOf(const HistogramSettings& settings) {
    return settings.grades < 2 ? Refusal{"Number of grades should be larger than 1!", "grades"} : Refusal{};
}

}  // namespace vorlan
