#include "analysis/QuadrantSettings.h"

#include "analysis/StressPairs.h"

namespace vorlan {

QuadrantSettings quadrantSettingsOf(const WorkspaceSettings& settings) {
    QuadrantSettings dialog;
    dialog.increment = settings.holeIncrement;
    dialog.maximum = settings.holeMaximum;
    dialog.ejectionThreshold = settings.ejectionThreshold;
    dialog.sweepThreshold = settings.sweepThreshold;
    dialog.maximumLag = settings.maximumTimeLag;
    if (settings.quadrantStress >= 0 && settings.quadrantStress < kStressPairs) {
        dialog.stressType = settings.quadrantStress;
    }
    return dialog;
}

void storeQuadrantSettings(const QuadrantSettings& dialog, WorkspaceSettings& settings) {
    settings.holeIncrement = dialog.increment;
    settings.holeMaximum = dialog.maximum;
    settings.ejectionThreshold = dialog.ejectionThreshold;
    settings.sweepThreshold = dialog.sweepThreshold;
    settings.maximumTimeLag = dialog.maximumLag;
    settings.quadrantStress = dialog.stressType;
}

Refusal refusalOf(const QuadrantSettings& settings) {
    if (settings.ejectionThreshold < 0.0) {
        return {"The ejection threshold should be grater than 0!", "ejection"};
    }
    if (settings.maximum < 2.0) {
        return {"The maximum size should be grater than 2!", "maximum"};
    }
    if (settings.maximumLag < 2.0) {
        return {"The maximum lag should be grater than 2!", "lag"};
    }
    if (settings.sweepThreshold < 0.0) {
        return {"The sweep threshold should be grater than 0!", "sweep"};
    }
    if (settings.increment == 0.0) {
        return {"The size increment should be grater than 0!", "increment"};
    }
    return {};
}

}  // namespace vorlan
