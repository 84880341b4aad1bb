#pragma once

namespace vorlan {

/// Weight of lag k of a univariate covariance function under the window code (0 rectangle, 1 Tukey, 2 Bartlett,
/// 3 Parzen; any other is a rectangle) of length L:
///   Tukey (cos(pi k / L) + 1) / 2; Bartlett 1 - k / L;
///   Parzen 1 - 6 (k/L)^2 + 6 (k/L)^3 for k <= L/2, else 2 (1 - k/L)^3.
double lagWindowWeight(int code, double k, double length);

/// Weight of lag k of a cross-covariance function under the window code of length L: as lagWindowWeight, but the
/// Bartlett weight is (1 - k) / L, which is negative from the second lag on.
double crossLagWindowWeight(int code, double k, double length);

}  // namespace vorlan
