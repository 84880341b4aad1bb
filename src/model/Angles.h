#pragma once

namespace vorlan {

/// Pi as every degree/radian conversion of the model writes it: angles then print the same everywhere.
inline constexpr double kPi = 3.141592653589;

/// Turns the point (x, y) by angleDeg degrees from the first axis towards the second:
/// r = sqrt(x^2 + y^2), phi = atan2(y, x) + angle, x = r cos(phi), y = r sin(phi).
void RotatePair(double& x, double& y, double angleDeg);

}  // namespace vorlan
