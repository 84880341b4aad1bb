#include "model/StageSettings.h"

#include "model/StageLimits.h"
#include "model/Text.h"

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
    if (settings.bands < 2) {
        return {"Band number should be larger than 1!", "bands"};
    }
    if (settings.bands > kMaximumBands) {
        return {formatted("Band number should be between 2 and %d!", kMaximumBands), "bands"};
    }
    return {};
}

Refusal refusalOf(const HistogramSettings& settings) {
    if (settings.grades < 2) {
        return {"Number of grades should be larger than 1!", "grades"};
    }
    if (settings.grades > kMaximumGrades) {
        return {formatted("Number of grades should be between 2 and %d!", kMaximumGrades), "grades"};
    }
    return {};
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
    if (settings.maximum / settings.increment >= kMaximumHoleSizes + 1.0) {
        return {formatted("The size increment should give no more than %d hole sizes!", kMaximumHoleSizes),
                "increment"};
    }
    return {};
}

Refusal refusalOf(const VectorSettings& settings) {
    if (!(settings.pixels > 0)) {
        return {"The number of pixels should be greater than 0!", "pixels"};
    }
    if (!(settings.speed > 0.0)) {
        return {"The velocity of the scale should be greater than 0!", "speed"};
    }
    if (!(settings.smaller > 0.0)) {
        return {"The scale of Min and Max Velocities should be greater than 0!", "smaller"};
    }
    return {};
}

}  // namespace vorlan
