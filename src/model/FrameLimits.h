#pragma once

#include "model/FrameAttributes.h"
#include "model/Refusal.h"

namespace vorlan {

/// Why the limits of a diagram may not be set; empty when they may. X is looked at before Y. Only equal limits are
/// refused: a minimum above its maximum is accepted.
inline Refusal limitsRefusal(const FrameAttributesType& frame) {
    if (frame.xMin == frame.xMax) {
        return {"X axis limits are equal ! Change Xmin or Xmax to be Xmin<Xmax.", "xMin"};
    }
    if (frame.yMin == frame.yMax) {
        return {"Y axis limits are equal ! Change Ymin or Ymax to be Ymin<Ymax.", "yMin"};
    }
    return {};
}

}  // namespace vorlan
