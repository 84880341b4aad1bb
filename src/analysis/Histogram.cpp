#include "analysis/Histogram.h"

#include <algorithm>
#include <cmath>

#include "analysis/AnalysedSeries.h"
#include "analysis/MomentEstimators.h"
#include "model/Index.h"
#include "model/StageLimits.h"

namespace vorlan {

namespace {

/// The distinct values of a column in ascending order, with the number of samples up to each.
class CumulativeCounts {
  public:
    explicit CumulativeCounts(const SArray& samples) {
        const auto units = samples.view();
        const auto [lowest, highest] = unitRange(units);
        const std::int64_t low = lowest;
        const auto range = static_cast<std::uint64_t>(highest - low);
        totals_.push_back(0);
        // Measured columns repeat few integers: counting them beats sorting unless one sample lies far away.
        if (range < 8 * units.size()) {
            std::vector<std::int64_t> counts(range + 1);
            for (const std::int32_t n : units) {
                ++counts[asSize(n - low)];
            }
            for (std::size_t i = 0; i < counts.size(); ++i) {
                if (counts[i] > 0) {
                    add(static_cast<std::int32_t>(low + static_cast<std::int64_t>(i)), samples.GetScale(), counts[i]);
                }
            }
        } else {
            std::vector<std::int32_t> sorted(units.begin(), units.end());
            std::sort(sorted.begin(), sorted.end());
            for (std::size_t i = 0; i < sorted.size();) {
                std::size_t end = i;
                while (end < sorted.size() && sorted[end] == sorted[i]) {
                    ++end;
                }
                add(sorted[i], samples.GetScale(), static_cast<std::int64_t>(end - i));
                i = end;
            }
        }
        if (samples.GetScale() < 0.0) {  // the values fall where the integers rise
            std::reverse(values_.begin(), values_.end());
            const std::int64_t all = totals_.back();
            std::reverse(totals_.begin(), totals_.end());
            for (std::int64_t& total : totals_) {
                total = all - total;
            }
        }
    }

    /// Number of samples x with lower <= x <= upper.
    std::int64_t between(double lower, double upper) const {
        const auto first = std::lower_bound(values_.begin(), values_.end(), lower) - values_.begin();
        const auto end = std::upper_bound(values_.begin(), values_.end(), upper) - values_.begin();
        return first < end ? totals_[asSize(end)] - totals_[asSize(first)] : 0;
    }

    /// Smallest and largest sample, where the resolution is positive.
    Extremes extremes() const { return {values_.front(), values_.back()}; }

  private:
    void add(std::int32_t units, double scale, std::int64_t count) {
        values_.push_back(units * scale);
        totals_.push_back(totals_.back() + count);
    }

    std::vector<double> values_;
    std::vector<std::int64_t> totals_;
};

constexpr int kCurvePoints = 500;
// As the curve has always been drawn; 2 pi would change the last digit.
constexpr double kCurveTwoPi = 6.28;

}  // namespace

void computeHistogram(STimeSeries& series, int grades) {
    if (grades < 1 || grades > kMaximumGrades) {
        throw InvalidArgument();
    }
    if (series.values.IsEmpty()) {
        throw InvalidArgument();
    }
    const CumulativeCounts counts(series.values);
    const auto [minimum, maximum] = series.values.GetScale() > 0.0 ? counts.extremes() : extremesOf(series.values);
    const double width = (maximum - minimum) / grades;
    const double samples = series.values.GetSize();
    series.histogram.SetScale(series.values.GetScale());
    series.grades = static_cast<std::uint32_t>(grades);
    for (int k = 0; k < grades; ++k) {
        const double lower = width * k + minimum;
        const double upper = k == grades - 1 ? maximum : lower + width;
        series.histogram.SetValue(k, (static_cast<double>(counts.between(lower, upper)) / samples) / width);
    }
}

std::string analyseDistributions(SAdvProbe& probe, const HistogramSettings& settings, Progress& progress) {
    progress.status("Distribution calculations: ");
    formAnalysedSeries(probe);
    const bool empty = probe.seriesU.values.IsEmpty();
    const bool earlier = !probe.seriesU.histogram.IsEmpty();
    const std::array<Moments, 3> moments =
        columnMoments({ColumnSamples::of(probe.seriesU.values), ColumnSamples::of(probe.seriesV.values),
                       ColumnSamples::of(probe.seriesW.values)},
                      progress);
    progress.pump();
    for (int component = 0; component < SAdvProbe::kComponents; ++component) {
        STimeSeries& series = probe.Series(component);
        series.moments = moments[asSize(component)];
        if (!empty) {
            if (earlier) {
                series.histogram.RemoveAll();
            }
            computeHistogram(series, settings.grades);
        }
        progress.pump();
    }
    probe.SetDone(DoneMark::Histograms);
    return {};
}

NormalCurve normalApproximation(const STimeSeries& series) {
    NormalCurve curve;
    if (series.values.IsEmpty()) {
        return curve;
    }
    const auto [minimum, maximum] = extremesOf(series.values);
    const double step = std::fabs(maximum - minimum) / kCurvePoints;
    const double mean = series.moments.mean;
    const double variance = series.moments.variance;
    std::vector<double> density;
    for (int i = 0; i < kCurvePoints; ++i) {
        const double x = minimum + i * step;
        curve.x.push_back(x);
        density.push_back(std::exp(-((x - mean) * (x - mean)) / (2.0 * variance)) / std::sqrt(variance * kCurveTwoPi));
    }
    curve.y.StoreValues(density);
    return curve;
}

}  // namespace vorlan
