#include "plot/PlanExtent.h"

#include <algorithm>
#include <cmath>

#include "plot/PointNames.h"
#include "plot/SeriesShapes.h"

namespace vorlan {

namespace {

// Arrows and names may take so much of an axis at both ends together; what is longer is cut.
constexpr double kLargestShare = 0.7;
constexpr int kMargin = 2;  // pixels between what stands at a point and the end of an axis
constexpr int kSteps = 40;

DataInterval widened(const DataInterval& interval, double room) {
    return interval.lowest < interval.highest ? interval
                                              : DataInterval{interval.lowest - room, interval.highest + room};
}

}  // namespace

PlanExtent::PlanExtent(const Diagram& diagram, const TextMeasure& measure, double lengthScale, const DataExtent& points)
    : diagram_(diagram),
      measure_(measure),
      lengthScale_(lengthScale),
      points_{widened(points.x, diagram.planRoom.value_or(0.0)), widened(points.y, diagram.planRoom.value_or(0.0))},
      extent_(points_) {}

void PlanExtent::addReach(double x, double y, const Spot& spot, const Spot& corner) {
    const double right = corner.x - spot.x;
    const double up = spot.y - corner.y;
    x_.push_back({x, std::max(-right, 0.0), std::max(right, 0.0)});
    y_.push_back({y, std::max(-up, 0.0), std::max(up, 0.0)});
}

void PlanExtent::collect(const CScreenUtils& geometry) {
    x_.clear();
    y_.clear();
    for (const PlotSeries& series : diagram_.plot.series) {
        const double radius = series.attributes.markerSize / 2 * lengthScale_;
        for (std::size_t i = 0; i < pointCount(series) && series.attributes.style == SeriesStyle::Markers; ++i) {
            x_.push_back({series.x.at(i), radius, radius});
            y_.push_back({series.y[i], radius, radius});
        }
        if (series.attributes.style != SeriesStyle::Arrows) {
            continue;
        }
        for (const Arrow& arrow : arrows(series, geometry, lengthScale_)) {
            const Spot& start = arrow.shaft.from;
            const double x = geometry.xValue(start.x);
            const double y = geometry.yValue(start.y);
            addReach(x, y, start, arrow.shaft.to);
            for (const Line& stroke : arrow.head) {
                addReach(x, y, start, stroke.to);
            }
        }
    }
    for (const PointName& name : freePointNames(diagram_, geometry, measure_, lengthScale_)) {
        addReach(name.x, name.y, name.at, {name.text.box.left, name.text.box.top});
        addReach(name.x, name.y, name.at, {name.text.box.right, name.text.box.bottom});
    }
}

bool PlanExtent::growAxis(const std::vector<Reach>& reaches, bool lowerFree, bool upperFree, const DataInterval& points,
                          double lower, double unitsPerPixel, int pixels, DataInterval& grown) {
    // One end may have what the other leaves, and never less than half.
    const double half = pixels * kLargestShare / 2.0;
    double needsBelow = 0.0;
    double needsAbove = 0.0;
    for (const Reach& reach : reaches) {
        needsBelow = std::max(needsBelow, reach.below + kMargin);
        needsAbove = std::max(needsAbove, reach.above + kMargin);
    }
    const double mostBelow = 2.0 * half - std::min(needsAbove, half);
    const double mostAbove = 2.0 * half - std::min(needsBelow, half);
    const double upper = lower + unitsPerPixel * pixels;
    const auto enclosed = [&](const DataInterval& interval, double scale) {
        DataInterval wanted = points;
        for (const Reach& reach : reaches) {
            const double below = std::min(reach.below + kMargin, mostBelow) * scale;
            const double above = std::min(reach.above + kMargin, mostAbove) * scale;
            wanted.lowest = std::min(wanted.lowest, reach.at - below);
            wanted.highest = std::max(wanted.highest, reach.at + above);
        }
        return DataInterval{lowerFree ? wanted.lowest : interval.lowest, upperFree ? wanted.highest : interval.highest};
    };
    const DataInterval drawn{lower, upper};
    const DataInterval needed = enclosed(drawn, unitsPerPixel);
    if (needed.lowest >= lower && needed.highest <= upper) {
        return false;
    }
    // The larger the interval, the more of it a pixel takes.
    DataInterval next = needed;
    for (int step = 0; step < kSteps; ++step) {
        next = enclosed(next, std::max((next.highest - next.lowest) / pixels, unitsPerPixel));
    }
    grown = next;
    return true;
}

bool PlanExtent::grow(const CScreenUtils& geometry) {
    collect(geometry);
    const FrameAttributesType& frame = diagram_.frame;
    const bool x = growAxis(x_, frame.xMinMode == 0, frame.xMaxMode == 0, points_.x, geometry.xMin, geometry.xScale,
                            geometry.width, extent_.x);
    const bool y = growAxis(y_, frame.yMinMode == 0, frame.yMaxMode == 0, points_.y, geometry.yMin, geometry.yScale,
                            geometry.height, extent_.y);
    return x || y;
}

}  // namespace vorlan
