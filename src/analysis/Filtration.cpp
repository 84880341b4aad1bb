#include "analysis/Filtration.h"

#include <cmath>

#include "analysis/ProbeMoments.h"
#include "analysis/ProgressPart.h"
#include "analysis/Stresses.h"
#include "analysis/kernels/SlidingProducts.h"
#include "model/DefaultFrames.h"
#include "model/Index.h"

namespace vorlan {

namespace {

// The constants keep the precision they are written with: results depend on it.
constexpr double kTwoPi = 6.2831852;
constexpr double kFilterPi = 3.1415926;
constexpr double kGaussianDeviation = 0.591;       // standard deviation times f, samples
constexpr double kGaussianDenominator = 0.698562;  // 2 * 0.591^2

double weightAt(FilterShape shape, double t, double m, double f) {
    const double span = 2.0 * m + 1.0;
    switch (shape) {
        case FilterShape::Rectangle:
            return 1.0 / span;
        case FilterShape::Tukey:
            return (std::cos(t * kTwoPi / span) + 1.0) / span;
        case FilterShape::Gaussian:
            return (f / (std::sqrt(kTwoPi) * kGaussianDeviation)) *
                   std::exp(-(t * t) / (kGaussianDenominator / (f * f)));
        case FilterShape::Bell:
            return std::sqrt(2.0) * std::exp(kFilterPi * (t * t) / (-2.0 * (m * m))) * std::cos(t * kTwoPi / m) / m;
    }
    throw InvalidArgument();
}

}  // namespace

std::vector<double> filterWeights(FilterShape shape, int halfWidth, double f) {
    std::vector<double> weights;
    weights.reserve(2 * asSize(halfWidth));
    for (int t = halfWidth - 1; t >= -halfWidth; --t) {
        weights.push_back(weightAt(shape, t, halfWidth, f));
    }
    return weights;
}

std::vector<double> filtered(std::span<const double> x, std::span<const double> weights, FilterType type,
                             Progress& progress) {
    if (weights.size() >= x.size()) {
        throw InvalidArgument();
    }
    const std::size_t m = weights.size() / 2;
    std::vector<double> y = slidingProducts(x.subspan(1), weights, x.size() - weights.size(), progress);
    if (type == FilterType::HighPass || type == FilterType::BandCut) {
        // The two subtract from different samples: the start of the span and its centre.
        const std::size_t reference = type == FilterType::HighPass ? 0 : m;
        for (std::size_t j = 0; j < y.size(); ++j) {
            y[j] = x[j + reference] - y[j];
        }
    }
    return y;
}

void filterVelocities(SAdvProbe& probe, const FilterSettings& settings, Progress& progress) {
    const double m = filterHalfWidthSamples(settings, probe.samplingInterval);
    if (!(m >= 0.0 && 2.0 * m < probe.WorkingSamples())) {
        throw InvalidArgument();
    }
    progress.status("Digital filtration calculations: ");
    const std::vector<double> weights =
        filterWeights(settings.shape, static_cast<int>(m), settings.cutoff * probe.samplingInterval);
    SMultiArray& velocities = probe.Velocities();
    for (int component = 0; component < SAdvProbe::kComponents; ++component) {
        SArray& column = velocities.ElementAt(component);
        const std::vector<double> samples = column.Values();
        progress.pump();
        ProgressPart part(progress, component / 3.0, (component + 1) / 3.0);
        const std::vector<double> outputs = filtered(samples, weights, settings.type, part);
        progress.pump();
        column.StoreValues(outputs);
        progress.pump();
    }
}

FilterDecision filterSeries(SAdvProbe& probe, const FilterSettings& settings, Progress& progress) {
    FilterDecision decision = decideFilter(settings, probe.WorkingSamples(), probe.samplingInterval);
    if (!decision.run) {
        return decision;
    }
    filterVelocities(probe, settings, progress);
    setRecordTitle(probe, "Filtered time series");
    formStresses(probe, StressResolution::SamePosition, progress);
    computeProbeMoments(probe, progress);
    return decision;
}

}  // namespace vorlan
