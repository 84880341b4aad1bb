#pragma once

namespace vorlan {

/// Weight of lag k of a cross-covariance function under the window code of length L: as lagWindowWeight, but the
/// Bartlett weight is (1 - k) / L, which is negative from the second lag on.
double crossLagWindowWeight(int code, double k, double length);

}  // namespace vorlan
