#include "plot/DataExtent.h"

#include <algorithm>
#include <limits>

namespace vorlan {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

class Extent {
  public:
    Extent(bool logX, bool logY) : floorX_(logX ? 0.0 : -kInfinity), floorY_(logY ? 0.0 : -kInfinity) {}

    void add(double x, double y) {
        // Written so that no value that is not a number passes.
        if (x > floorX_ && x < kInfinity && y > floorY_ && y < kInfinity) {
            box_.x.lowest = std::min(box_.x.lowest, x);
            box_.x.highest = std::max(box_.x.highest, x);
            box_.y.lowest = std::min(box_.y.lowest, y);
            box_.y.highest = std::max(box_.y.highest, y);
        }
    }
    // Evenly spaced points first .. end - 1 from the extremes of their values, when all have a place on the axes.
    bool addSpan(const SeriesX& x, std::size_t first, std::size_t end, const std::optional<DataInterval>& y) {
        const double left = x.at(first);
        const double right = x.at(end - 1);
        const auto placed = [this](double at) { return at > floorX_ && at < kInfinity; };
        if (!y || !(y->lowest > floorY_) || !placed(left) || !placed(right)) {
            return false;
        }
        add(left, y->lowest);
        add(right, y->highest);
        return true;
    }
    std::optional<DataExtent> box() const {
        return box_.x.lowest <= box_.x.highest ? std::optional(box_) : std::nullopt;
    }

  private:
    double floorX_;
    double floorY_;
    DataExtent box_{{kInfinity, -kInfinity}, {kInfinity, -kInfinity}};
};

}  // namespace

std::size_t pointCount(const PlotSeries& series) {
    const std::size_t values = series.y.size();
    return series.x.values.empty() ? values : std::min(values, series.x.values.size());
}

std::optional<DataExtent> seriesExtent(const PlotSeries& series, bool logX, bool logY) {
    Extent extent(logX, logY);
    const std::size_t n = pointCount(series);
    const std::size_t blocks =
        series.x.values.empty() && series.blocks.cover(n) ? series.blocks.count() : std::size_t{0};
    const auto addPoints = [&](std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i) {
            extent.add(series.x.at(i), series.y[i]);
        }
    };
    const std::size_t covered = blocks * ValueBlocks::kSize;
    if (blocks == 0 || !extent.addSpan(series.x, 0, covered, series.blocks.extremes())) {
        for (std::size_t b = 0; b < blocks; ++b) {
            const std::size_t first = b * ValueBlocks::kSize;
            const std::size_t end = first + ValueBlocks::kSize;
            if (!extent.addSpan(series.x, first, end, series.blocks.extremesOf(b))) {
                addPoints(first, end);
            }
        }
    }
    addPoints(covered, n);
    if (series.attributes.style == SeriesStyle::Bars && series.x.values.size() > n && n > 0) {
        extent.add(series.x.values[n], series.y[n - 1]);
    }
    return extent.box();
}

std::optional<DataExtent> dataExtent(const SPlot& plot, bool logX, bool logY) {
    Extent extent(logX, logY);
    for (const PlotSeries& series : plot.series) {
        if (const std::optional<DataExtent> one = seriesExtent(series, logX, logY)) {
            extent.add(one->x.lowest, one->y.lowest);
            extent.add(one->x.highest, one->y.highest);
        }
    }
    return extent.box();
}

}  // namespace vorlan
