#include "analysis/SpectralSettings.h"

#include <algorithm>
#include <limits>

#include "model/Index.h"

namespace vorlan {

SpectralSettings spectralSettingsOf(const WorkspaceSettings& settings) {
    SpectralSettings dialog = usable(settings.spectral);
    const Range range = fieldOf(dialog, dialog.percent).range;
    dialog.percent = std::clamp(dialog.percent, static_cast<int>(range.minimum), static_cast<int>(range.maximum));
    return dialog;
}

void storeSpectralSettings(const SpectralSettings& dialog, WorkspaceSettings& settings) {
    settings.spectral = dialog;
    settings.lastWindowCode = windowCodeOfButton(dialog.windowButton);
    settings.lastUnitIsRad = unitSelectorOfButton(dialog.unitButton) == 1;
}

int windowCodeOfButton(int windowButton) {
    // The buttons stand in the order rectangle, Bartlett, Tukey, Parzen.
    switch (windowButton) {
        case 1:
            return 2;
        case 2:
            return 1;
        case 3:
            return 3;
        default:
            return 0;
    }
}

int unitSelectorOfButton(int unitButton) {
    return unitButton == 0 ? 1 : 0;
}

int truncationPoint(const SpectralDialogValues& settings, int samples) {
    const int value = settings.truncationMode == SpectralSettings::kPercentMode ? settings.percent : settings.lags;
    if (!settings.percentFlag) {
        return value;
    }
    const std::int64_t lags = static_cast<std::int64_t>(samples) * value / 100;
    return asInt(std::min<std::int64_t>(lags, std::numeric_limits<int>::max()));
}

}  // namespace vorlan
