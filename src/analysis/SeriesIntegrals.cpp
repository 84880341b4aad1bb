#include "analysis/SeriesIntegrals.h"

#include <algorithm>

#include "analysis/SpectralScale.h"
#include "model/Index.h"

namespace vorlan {

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

}  // namespace vorlan
