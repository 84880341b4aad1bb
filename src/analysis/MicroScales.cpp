#include "analysis/MicroScales.h"

#include <cmath>

#include "model/Units.h"

namespace vorlan {

namespace {
// The cube of the viscosity as the scale is defined with it, rounded more coarsely than the viscosity itself.
constexpr double kViscosityCubed = 1.01e-6;
constexpr double kViscosity = 0.0101;  // of water, cm^2/s
}  // namespace

double kolmogorovMicroScale(double dissipationRate) {
    return std::pow(kViscosityCubed / dissipationRate, 0.25);
}

double turbulentAcceleration(double dissipationRate) {
    return 3.0 * std::sqrt(dissipationRate * dissipationRate * dissipationRate / kViscosity) / kGravity;
}

}  // namespace vorlan
