#include "model/Angles.h"

#include <cmath>

namespace vorlan {

void RotatePair(double& x, double& y, double angleDeg) {
    const double r = std::sqrt(x * x + y * y);
    const double phi = std::atan2(y, x) + angleDeg * kPi / 180.0;
    x = r * std::cos(phi);
    y = r * std::sin(phi);
}

}  // namespace vorlan
