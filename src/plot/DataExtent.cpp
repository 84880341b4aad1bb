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
    // The points of one block of evenly spaced ones, from their extremes when all have a place on the axes.
    bool addBlock(const PlotSeries& series, std::size_t block) {
        const std::optional<DataInterval> y = series.blocks.extremesOf(block);
        const std::size_t first = block * ValueBlocks::kSize;
        const double left = series.x.at(first);
        const double right = series.x.at(first + ValueBlocks::kSize - 1);
        const auto placed = [this](double x) { return x > floorX_ && x < kInfinity; };
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
    for (std::size_t b = 0; b < blocks; ++b) {
        if (!extent.addBlock(series, b)) {
            addPoints(b * ValueBlocks::kSize, (b + 1) * ValueBlocks::kSize);
        }
    }
    addPoints(blocks * ValueBlocks::kSize, n);
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
