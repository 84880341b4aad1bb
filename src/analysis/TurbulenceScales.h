#pragma once

#include <array>

#include "model/SAdvProbe.h"

namespace vorlan {

/// The functions that scales are integrated from.
enum class ScalesSource : int { Correlation, Spectrum };

/// A range of lag times, s, or of frequencies in the unit of the spectra.
struct ScalesReading {
    ScalesSource source = ScalesSource::Correlation;
    double from = 0.0;
    double to = 0.0;
};

/// Indexes of a function between two limits; nothing to integrate unless first is below last.
struct IndexRange {
    int first = 0;
    int last = 0;

    bool isEmpty() const { return first >= last; }
    friend bool operator==(const IndexRange&, const IndexRange&) = default;
};

/// Limits to indexes: each divided by step and truncated toward zero, what 32 bits cannot hold to the largest or
/// smallest integer. Then a negative first index becomes 0, a negative last one 1.
IndexRange indexRange(double from, double to, double step);

/// Indexes of a reading: the step is the sampling interval for correlation functions, the frequency step of the
/// probe's spectra for these.
IndexRange indexRange(const ScalesReading& reading, const SAdvProbe& probe);

/// Integral time scales Tu, Tv, Tw, s (correlation), or integrals of the spectra Su, Sv, Sw, (cm/s)^2, over range.
std::array<double, 3> integratedScales(ScalesSource source, const SAdvProbe& probe, const IndexRange& range);

/// Trapezoidal integral of R / variance over lags first..last, s. The last index is reduced to the length of the
/// correlation function and the loop ends at last - 2; 0 when first is not below last - 1.
double correlationIntegral(const STimeSeries& series, int first, int last);

/// Trapezoidal integral of the spectrum over indexes first..last, (cm/s)^2; the loop ends at last - 3.
double spectrumIntegral(const STimeSeries& series, int first, int last);

/// Kolmogorov micro-scale, cm, of a dissipation rate in cm^2/s^3: (1.01e-6 / epsilon)^0.25.
double kolmogorovMicroScale(double dissipationRate);

/// Mean turbulent acceleration in units of gravity: 3 sqrt(epsilon^3 / 0.0101) / 981.
double turbulentAcceleration(double dissipationRate);

}  // namespace vorlan
