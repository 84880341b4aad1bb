#include "analysis/CrossLagWindow.h"

#include "analysis/LagWindow.h"

namespace vorlan {

namespace {
constexpr int kBartlett = 2;
}

double crossLagWindowWeight(int code, double k, double length) {
    return code == kBartlett ? (1.0 - k) / length : lagWindowWeight(code, k, length);
}

}  // namespace vorlan
