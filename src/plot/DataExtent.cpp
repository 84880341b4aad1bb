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

std::optional<DataExtent> dataExtent(const SPlot& plot, bool logX, bool logY) {
    Extent extent(logX, logY);
    for (const PlotSeries& series : plot.series) {
        const std::size_t n = pointCount(series);
        for (std::size_t i = 0; i < n; ++i) {
            extent.add(series.x.at(i), series.y[i]);
        }
        if (series.attributes.style == SeriesStyle::Bars && series.x.values.size() > n && n > 0) {
            extent.add(series.x.values[n], series.y[n - 1]);
        }
    }
    return extent.box();
}

}  // namespace vorlan
