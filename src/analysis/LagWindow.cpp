#include "analysis/LagWindow.h"

#include <cmath>

#include "model/Angles.h"

namespace vorlan {

namespace {
constexpr int kBartlett = 2;
}

double lagWindowWeight(int code, double k, double length) {
    const double share = k / length;
    switch (code) {
        case 1:
            return (std::cos(kPi * k / length) + 1.0) * 0.5;
        case kBartlett:
            return 1.0 - share;
        case 3:
            if (k <= length / 2.0) {
                return 1.0 - 6.0 * share * share + 6.0 * share * share * share;
            }
            return 2.0 * (1.0 - share) * (1.0 - share) * (1.0 - share);
        default:
            return 1.0;
    }
}

double crossLagWindowWeight(int code, double k, double length) {
    return code == kBartlett ? (1.0 - k) / length : lagWindowWeight(code, k, length);
}

}  // namespace vorlan
