#include "analysis/DissipationRate.h"

#include <cmath>

#include "model/Index.h"

namespace vorlan {

namespace {
constexpr double kRadiansPerCycle = 6.283185307178;
constexpr double kStructureConstant = 1.92;
constexpr int kHertz = 0;
}  // namespace

double dissipationFromSpectrum(double frequency, double density, int unitSelector, double convectiveVelocity) {
    if (unitSelector == kHertz) {
        density /= kRadiansPerCycle;
        frequency *= kRadiansPerCycle;
    }
    return std::pow(2.0 * density, 1.5) * std::pow(frequency, 2.5) / convectiveVelocity;
}

double dissipationFromStructure(double lag, double structure, double convectiveVelocity) {
    return std::pow(structure / kStructureConstant, 1.5) / (lag * convectiveVelocity);
}

double dissipationRate(const DissipationReading& reading, int unitSelector, double convectiveVelocity) {
    return reading.source == DissipationSource::Spectrum
               ? dissipationFromSpectrum(reading.x, reading.y, unitSelector, convectiveVelocity)
               : dissipationFromStructure(reading.x, reading.y, convectiveVelocity);
}

double dissipationRate(const DissipationReading& reading, const SAdvProbe& probe, const WorkspaceSettings& settings) {
    return dissipationRate(reading, asInt(probe.spectralUnit), convectiveVelocity(probe, settings));
}

double averagedVelocity(const SAdvProbe& probe) {
    const double u = probe.seriesU.moments.mean;
    const double v = probe.seriesV.moments.mean;
    const double w = probe.seriesW.moments.mean;
    return std::sqrt(u * u + v * v + w * w);
}

double convectiveVelocity(const SAdvProbe& probe, const WorkspaceSettings& settings) {
    const MeanVelocitySettings& chosen = settings.meanVelocity;
    return chosen.mode == MeanVelocityMode::User ? chosen.value : averagedVelocity(probe);
}

}  // namespace vorlan
