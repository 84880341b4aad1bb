#include "analysis/Stationarity.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "analysis/AnalysedSeries.h"
#include "analysis/MomentEstimators.h"
#include "analysis/ProgressPart.h"
#include "analysis/kernels/KernelSet.h"
#include "analysis/kernels/Pacer.h"
#include "model/Index.h"
#include "model/StageLimits.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr double kBandResolution = 0.0001;

double sumOf(std::span<const double> samples, double sum = 0.0) {
    for (const double x : samples) {
        sum += x;
    }
    return sum;
}

/// Stores the mean and gives back what was stored.
double storeMean(STimeSeries& series, int band, double sum, double samples) {
    series.bandMeans.SetValue(band, sum / samples);
    return series.bandMeans.GetValue(band);
}

void storeHigherMoments(STimeSeries& series, int band, const PowerSums& sums, double samples) {
    series.bandVariances.SetValue(band, sums.squares / (samples - 1.0));
    const double variance = series.bandVariances.GetValue(band);
    series.bandSkewness.SetValue(band, sums.cubes / (variance * samples * std::sqrt(variance)));
    series.bandKurtosis.SetValue(band, sums.fourths / (variance * variance * samples) - 3.0);
}

void computeBand(STimeSeries& series, int band, std::span<const double> samples) {
    const auto count = static_cast<double>(samples.size());
    const double mean = storeMean(series, band, sumOf(samples), count);
    PowerSums sums;
    for (const double x : samples) {
        sums.add(x - mean);
    }
    storeHigherMoments(series, band, sums, count);
}

void computeFixedBands(STimeSeries& series, std::span<const double> values, std::size_t bands, Progress& progress) {
    const std::size_t length = values.size() / bands;
    const auto compute = [&](std::size_t band, std::size_t first) {
        computeBand(series, asInt(band), values.subspan(first, length));
        progress.pump();
    };
    for (std::size_t k = 0; k + 2 < bands; ++k) {
        compute(k, k * length);
    }
    // Between neighbours a band half a length later is computed into the place of the next one; only the last of
    // these is not overwritten.
    if (bands > 2) {
        compute(bands - 2, (bands - 3) * length + length / 2);
    }
    compute(bands - 1, (bands - 1) * length);
}

/// Adds the samples to the sums of neighbouring bands, a piece at a time.
void addSamples(std::span<const double> samples, BandSums& sums, const KernelSet& kernels, Pacer& pacer) {
    constexpr std::size_t kPiece = std::size_t{1} << 17;
    for (std::size_t first = 0; first < samples.size(); first += kPiece) {
        const std::size_t count = std::min(kPiece, samples.size() - first);
        kernels.powerSums(samples.data() + first, count, sums);
        pacer.worked(count * kernels.bands);
    }
}

void computeCumulativeBands(STimeSeries& series, std::span<const double> values, std::size_t bands,
                            Progress& progress) {
    const KernelSet& kernels = kernelsInUse();
    const std::size_t length = values.size() / bands;
    // A block of bands adds all samples up to its last one.
    Pacer pacer(progress, static_cast<double>(length * bands) * static_cast<double>(bands + kernels.bands) / 2.0);
    double sum = 0.0;
    for (std::size_t first = 0; first < bands; first += kernels.bands) {
        const std::size_t count = std::min(kernels.bands, bands - first);
        // The bands start alike and run side by side, each with its own mean; one that has ended adds on, unread.
        BandSums sums{};
        for (std::size_t b = 0; b < count; ++b) {
            sum = sumOf(values.subspan((first + b) * length, length), sum);
            sums.means[b] = storeMean(series, asInt(first + b), sum, static_cast<double>((first + b + 1) * length));
        }
        addSamples(values.subspan(0, first * length), sums, kernels, pacer);
        for (std::size_t b = 0; b < count; ++b) {
            addSamples(values.subspan((first + b) * length, length), sums, kernels, pacer);
            storeHigherMoments(series, asInt(first + b), {sums.squares[b], sums.cubes[b], sums.fourths[b]},
                               static_cast<double>((first + b + 1) * length));
        }
    }
    progress.pump();
}

}  // namespace

void computeBands(STimeSeries& series, BandMode mode, int bands, Progress& progress) {
    if (bands < 1 || bands > kMaximumBands) {
        throw InvalidArgument();
    }
    for (SArray* column : {&series.bandMeans, &series.bandVariances, &series.bandSkewness, &series.bandKurtosis}) {
        column->SetScale(kBandResolution);
    }
    series.bands = static_cast<std::uint32_t>(bands);
    const std::vector<double> values = series.values.Values();
    progress.pump();
    const auto count = asSize(bands);
    if (mode == BandMode::Cumulative) {
        computeCumulativeBands(series, values, count, progress);
    } else {
        computeFixedBands(series, values, count, progress);
    }
}

std::string analyseStationarity(SAdvProbe& probe, const StationaritySettings& settings, Progress& progress) {
    progress.status("Stationarity calculations: ");
    formAnalysedSeries(probe);
    const int samples = probe.seriesU.values.GetSize();
    if (settings.bands > samples) {
        return formatted("Band number should not be larger than the number of samples, %d!", samples);
    }
    for (int component = 0; component < SAdvProbe::kComponents; ++component) {
        STimeSeries& series = probe.Series(component);
        series.ClearStationarityResults();
        ProgressPart part(progress, component / 3.0, (component + 1) / 3.0);
        computeBands(series, settings.mode, settings.bands, part);
    }
    probe.bandMode = static_cast<std::uint32_t>(settings.mode);
    probe.SetDone(DoneMark::Stationarity);
    return {};
}

}  // namespace vorlan
