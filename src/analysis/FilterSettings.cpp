#include "analysis/FilterSettings.h"

#include <cmath>

namespace vorlan {

FilterType defaultTypeOf(FilterShape shape) {
    return shape == FilterShape::Bell ? FilterType::BandPass : FilterType::LowPass;
}

bool allowsType(FilterShape shape, FilterType type) {
    switch (shape) {
        case FilterShape::Rectangle:
        case FilterShape::Tukey:
            return type == FilterType::LowPass || type == FilterType::HighPass;
        case FilterShape::Gaussian:
            return type == FilterType::LowPass;
        case FilterShape::Bell:
            return type == FilterType::BandPass || type == FilterType::BandCut;
    }
    return false;
}

double filterHalfWidthSamples(const FilterSettings& settings, double samplingInterval) {
    if (settings.shape != FilterShape::Gaussian) {
        return std::trunc(settings.halfWidth / samplingInterval);
    }
    // The half width at which the Gaussian weight has fallen to 0.004728.
    const double f = settings.cutoff * samplingInterval;
    return std::trunc(std::sqrt(-std::log(std::sqrt(6.2831852) * 0.004728 / f) * (0.698562 / (f * f))));
}

FilterDecision decideFilter(const FilterSettings& settings, int samples, double samplingInterval) {
    const double h = settings.halfWidth;
    const double dt = samplingInterval;
    const double quarter = 0.25 * (samples * dt);
    FilterDecision decision;
    if (dt < h && h < quarter) {
        const double m = filterHalfWidthSamples(settings, dt);
        if (2.0 * m < samples) {
            decision.run = true;
        } else {
            decision.refusals.emplace_back(kFilterWidthTooLarge);
        }
        return decision;
    }
    if (dt > h) {
        decision.refusals.emplace_back(kFilterWidthTooSmall);
    }
    if (quarter < h) {
        decision.refusals.emplace_back(kFilterWidthTooLarge);
    }
    return decision;
}

}  // namespace vorlan
