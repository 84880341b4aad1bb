#include "analysis/TurbulenceScales.h"

#include <limits>

#include "analysis/SeriesIntegrals.h"
#include "analysis/SpectralScale.h"
#include "model/Index.h"
#include "model/StoreValue.h"

namespace vorlan {

namespace {

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

std::array<double, 3> integratedScales(ScalesSource source, const SAdvProbe& probe, const IndexRange& range) {
    const auto integral = source == ScalesSource::Correlation ? correlationIntegral : spectrumIntegral;
    std::array<double, 3> values{};
    for (std::size_t c = 0; c < values.size(); ++c) {
        values[c] = integral(probe.Series(asInt(c)), range.first, range.last);
    }
    return values;
}

}  // namespace vorlan
