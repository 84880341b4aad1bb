#pragma once

#include "model/SAdvProbe.h"
#include "model/WorkspaceSettings.h"

namespace vorlan {

/// The function that a dissipation rate is read off.
enum class DissipationSource : int { Spectrum, Structure };

/// A point of a spectrum (frequency in its unit, spectral density) or of a structure function (lag time s, (cm/s)^2).
struct DissipationReading {
    DissipationSource source = DissipationSource::Spectrum;
    double x = 0.0;
    double y = 0.0;
};

/// Dissipation rate, cm^2/s^3, of a point in the inertial range of a one-dimensional spectrum: with Kolmogorov's
/// constant 1/2 and frozen turbulence carried past the probe at U cm/s, epsilon = (2 S)^1.5 w^2.5 / U over the angular
/// frequency w. In Hz (unit 0) S is first divided and f multiplied by 6.283185307178. Not finite where U is 0.
double dissipationFromSpectrum(double frequency, double density, int unitSelector, double convectiveVelocity);

/// Dissipation rate, cm^2/s^3, of a point in the inertial range of a second-order structure function D over the lag
/// time tau, with the constant 1.92: epsilon = (D / 1.92)^1.5 / (tau U). Not finite where tau or U is 0.
double dissipationFromStructure(double lag, double structure, double convectiveVelocity);

/// One of the two, by the source of the reading.
double dissipationRate(const DissipationReading& reading, int unitSelector, double convectiveVelocity);

/// The same with the unit of the probe's spectra and the convective velocity that the settings choose.
double dissipationRate(const DissipationReading& reading, const SAdvProbe& probe, const WorkspaceSettings& settings);

/// Magnitude of the means of the probe's three analysed series, cm/s.
double averagedVelocity(const SAdvProbe& probe);

/// Velocity that carries the turbulence past the probe, cm/s: the user's in mode 1, else the averaged one.
double convectiveVelocity(const SAdvProbe& probe, const WorkspaceSettings& settings);

}  // namespace vorlan
