#include "analysis/SpectralAnalysis.h"

#include <algorithm>
#include <array>
#include <limits>

#include "analysis/AnalysedSeries.h"
#include "analysis/MomentEstimators.h"
#include "analysis/ProgressPart.h"
#include "analysis/SpectralFunctions.h"
#include "model/Index.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr double kCovarianceResolution = 1e-5;
constexpr double kSpectrumResolution = 1e-7;

void storeColumn(SArray& column, double resolution, std::span<const double> values) {
    column.SetScale(resolution);
    column.StoreValues(values);
}

/// A spectral estimate is never negative; the most negative integer has no counterpart and stays.
void makePositive(SArray& column) {
    for (std::int32_t& n : column.view()) {
        if (n < 0 && n != std::numeric_limits<std::int32_t>::min()) {
            n = -n;
        }
    }
}

}  // namespace

bool truncationPointFits(int lags, int samples) {
    return lags <= samples / 2;
}

SpectralRun spectralRunOf(const SpectralDialogValues& settings, int samples) {
    return {truncationPoint(settings, samples), windowCodeOfButton(settings.windowButton),
            unitSelectorOfButton(settings.unitButton)};
}

SpectralRun spectralRunOf(const SAdvProbe& probe) {
    return {asInt(probe.spectralLags), asInt(probe.spectralWindow), asInt(probe.spectralUnit)};
}

std::string analyseSpectra(SAdvProbe& probe, const SpectralRun& run, Progress& progress) {
    formAnalysedSeries(probe);
    if (!truncationPointFits(run.lags, probe.seriesU.values.GetSize())) {
        return kTruncationTooLarge;
    }
    progress.status("Spectral analysis calculations: ");
    int position = 0;
    const auto advance = [&](int step) {
        position += step;
        progress.position(position);
    };
    const auto part = [&](int step) { return ProgressPart(progress, position * 0.01, (position + step) * 0.01); };
    for (int component = 0; component < SAdvProbe::kComponents; ++component) {
        STimeSeries& series = probe.Series(component);
        series.samplingInterval = probe.samplingInterval;
        series.lags = static_cast<std::uint32_t>(run.lags);
        series.windowCode = static_cast<std::uint32_t>(run.windowCode);
        series.unitSelector = static_cast<std::uint32_t>(run.unitSelector);

        const std::vector<double> samples = series.values.Values();
        progress.pump();
        series.moments = momentsOf(samples);
        progress.pump();
        const std::vector<double> deviations = deviationsFrom(samples, series.moments.mean);
        advance(5);
        progress.pump();

        ProgressPart covariances = part(10);
        storeColumn(series.correlation, kCovarianceResolution, autocovariance(deviations, run.lags, covariances));
        advance(10);

        ProgressPart spectrum = part(10);
        // The transform reads the function back as it was stored.
        storeColumn(series.spectrum, kSpectrumResolution,
                    powerSpectrum(series.correlation.Values(), run.windowCode, run.unitSelector,
                                  series.samplingInterval, spectrum));
        makePositive(series.spectrum);
        advance(10);

        // 35 per cent for U and V each, the rest for W.
        const int rest = component == SAdvProbe::kComponents - 1 ? 5 : 10;
        ProgressPart structure = part(rest);
        storeColumn(series.structureFunction, kCovarianceResolution,
                    structureFunction(deviations, run.lags, structure));
        advance(rest);
    }
    probe.spectralLags = static_cast<std::uint32_t>(run.lags);
    probe.spectralWindow = static_cast<std::uint32_t>(run.windowCode);
    probe.spectralUnit = static_cast<std::uint32_t>(run.unitSelector);
    probe.SetDone(DoneMark::Spectral);
    return {};
}

}  // namespace vorlan
