#include "ui/views/IntervalSelection.h"

#include <algorithm>
#include <cmath>

#include "analysis/Clipping.h"

namespace vorlan {

void IntervalSelection::press(double time) {
    on_ = true;
    byKeys_ = false;
    fixed_ = free_ = time;
}

void IntervalSelection::drag(double time) {
    byKeys_ = false;
    free_ = time;
}

void IntervalSelection::move(const Step& step, bool otherEdge, const SampleAxis& axis) {
    if (!on_) {
        on_ = true;
        fixed_ = clippingTime(0, axis.interval);
        free_ = clippingTime(axis.count, axis.interval);
    }
    byKeys_ = true;
    double& edge = otherEdge ? fixed_ : free_;
    const double last = axis.count;
    double sample = std::clamp(std::round(edge / axis.interval), 0.0, last);
    sample = step.toStart ? 0.0 : step.toEnd ? last : std::clamp(sample + step.samples, 0.0, last);
    edge = clippingTime(static_cast<int>(sample), axis.interval);
}

}  // namespace vorlan
