#include "model/StageSettings.h"

namespace vorlan {

namespace {
constexpr int kFewestLags = 3;
}  // namespace

Refusal refusalOf(const FilterSettings& settings) {
    if (settings.halfWidth == 0.0) {
        return {"The filter width should be grater than 0!", "half_width"};
    }
    if (settings.cutoff == 0.0) {
        return {"The cutoff frequency should be grater than 0!", "cutoff"};
    }
    return {};
}

Refusal refusalOf(const StationaritySettings& settings) {
    return settings.bands < 2 ? Refusal{"Band number should be larger than 1!", "bands"} : Refusal{};
}

Refusal refusalOf(const HistogramSettings& settings) {
    return settings.grades < 2 ? Refusal{"Number of grades should be larger than 1!", "grades"} : Refusal{};
}

Refusal refusalOf(const SpectralSettings& settings) {
    if (settings.truncationMode == SpectralSettings::kPercentMode && settings.percent == 0) {
        return {"The truncation point should be grater than 0!", "percent"};
    }
    if (settings.truncationMode == SpectralSettings::kLagsMode && settings.lags < kFewestLags) {
        return {"The truncation point should be grater than 2!", "lags"};
    }
    return {};
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
