#include "analysis/TurbulenceScales.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "analysis/SpectralScale.h"
#include "model/Index.h"
#include "model/StoreValue.h"
#include "model/Units.h"

namespace vorlan {

namespace {

// The cube of the viscosity as the scale is defined with it, rounded more coarsely than the viscosity itself.
constexpr double kViscosityCubed = 1.01e-6;
constexpr double kViscosity = 0.0101;  // of water, cm^2/s

int indexOf(double limit, double step) {
    const double index = limit / step;
    return index > 0.0 && !fitsInt32(index) ? std::numeric_limits<int>::max() : truncateToInt32(index);
}

}  // namespace

IndexRange indexRange(double from, double to, double step) {
    IndexRange range{indexOf(from, step), indexOf(to, step)};
    range.first = range.first < 0 ? 0 : range.first;
    range.last = range.last < 0 ? 1 : range.last;
    return range;
}

IndexRange indexRange(const ScalesReading& reading, const SAdvProbe& probe) {
    const double step =
        reading.source == ScalesSource::Correlation
            ? probe.samplingInterval
            : frequencyStep(probe.seriesU.spectrum.GetSize(), probe.samplingInterval, asInt(probe.spectralUnit));
    return indexRange(reading.from, reading.to, step);
}

double correlationIntegral(const STimeSeries& series, int first, int last) {
    const SArray& correlation = series.correlation;
    const int end = std::min(last, correlation.GetSize());
    const double variance = series.moments.variance;
    double sum = 0.0;
    for (int k = first; k < end - 1; ++k) {
        sum += (correlation.GetValue(k) / variance + correlation.GetValue(k + 1) / variance) * 0.5;
    }
    return sum * series.samplingInterval;
}

double spectrumIntegral(const STimeSeries& series, int first, int last) {
    const SArray& spectrum = series.spectrum;
    const int end = std::min(last, spectrum.GetSize());
    double sum = 0.0;
    for (int k = first; k < end - 2; ++k) {
        sum += (spectrum.GetValue(k) + spectrum.GetValue(k + 1)) * 0.5;
    }
    if (spectrum.IsEmpty()) {
        return 0.0;
    }
    return sum * frequencyStep(spectrum.GetSize(), series.samplingInterval, asInt(series.unitSelector));
}

std::array<double, 3> integratedScales(ScalesSource source, const SAdvProbe& probe, const IndexRange& range) {
    const auto integral = source == ScalesSource::Correlation ? correlationIntegral : spectrumIntegral;
    std::array<double, 3> values{};
    for (std::size_t c = 0; c < values.size(); ++c) {
        values[c] = integral(probe.Series(asInt(c)), range.first, range.last);
    }
    return values;
}

double kolmogorovMicroScale(double dissipationRate) {
    return std::pow(kViscosityCubed / dissipationRate, 0.25);
}

double turbulentAcceleration(double dissipationRate) {
    return 3.0 * std::sqrt(dissipationRate * dissipationRate * dissipationRate / kViscosity) / kGravity;
}

}  // namespace vorlan
