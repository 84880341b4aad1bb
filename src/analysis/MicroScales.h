#pragma once

namespace vorlan {

/// Kolmogorov micro-scale, cm, of a dissipation rate in cm^2/s^3: (1.01e-6 / epsilon)^0.25.
double kolmogorovMicroScale(double dissipationRate);

/// Mean turbulent acceleration in units of gravity: 3 sqrt(epsilon^3 / 0.0101) / 981.
double turbulentAcceleration(double dissipationRate);

}  // namespace vorlan
