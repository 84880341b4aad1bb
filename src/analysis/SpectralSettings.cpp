#include "analysis/SpectralSettings.h"

#include <algorithm>
#include <limits>

namespace vorlan {

namespace {
constexpr int kPercentMode = 0;
constexpr int kLagsMode = 1;
constexpr int kLargestPercent = 50;
constexpr int kFewestLags = 3;
}  // namespace

SpectralSettings spectralSettingsOf(const WorkspaceSettings& settings) {
    SpectralSettings dialog;
    if (settings.windowButton >= 0 && settings.windowButton <= 3) {
        dialog.windowButton = settings.windowButton;
    }
    if (settings.unitButton == 0 || settings.unitButton == 1) {
        dialog.unitButton = settings.unitButton;
    }
    dialog.truncationMode = settings.truncationMode == kLagsMode ? kLagsMode : kPercentMode;
    dialog.percent = std::clamp(settings.lagPercent, 0, kLargestPercent);
    dialog.lags = settings.lagCount;
    return dialog;
}

void storeSpectralSettings(const SpectralSettings& dialog, WorkspaceSettings& settings) {
    settings.windowButton = dialog.windowButton;
    settings.unitButton = dialog.unitButton;
    settings.truncationMode = dialog.truncationMode;
    settings.lagPercent = dialog.percent;
    settings.lagCount = dialog.lags;
    settings.lastWindowCode = windowCodeOfButton(dialog.windowButton);
    settings.lastUnitIsRad = unitSelectorOfButton(dialog.unitButton) == 1;
}

Refusal refusalOf(const SpectralSettings& settings) {
    if (settings.truncationMode == kPercentMode && settings.percent == 0) {
        return {"The truncation point should be grater than 0!", "percent"};
    }
    if (settings.truncationMode == kLagsMode && settings.lags < kFewestLags) {
        return {"The truncation point should be grater than 2!", "lags"};
    }
    return {};
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

int truncationPoint(const SpectralSettings& settings, int samples) {
    const int value = settings.truncationMode == kPercentMode ? settings.percent : settings.lags;
    if (!settings.percentFlag) {
        return value;
    }
    const std::int64_t lags = static_cast<std::int64_t>(samples) * value / 100;
    return static_cast<int>(std::min<std::int64_t>(lags, std::numeric_limits<int>::max()));
}

}  // namespace vorlan
