#include "plot/SeriesShapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "model/Index.h"
#include "plot/DataExtent.h"
#include "plot/PolylineEnvelope.h"

namespace vorlan {

namespace {

constexpr double kSmallestHeadedShaft = 2.0;

bool placed(const PlotSeries& series, std::size_t i, const CScreenUtils& geometry, Spot& spot) {
    const double x = series.x.at(i);
    const double y = series.y[i];
    if (!geometry.xPixels().places(x) || !geometry.yPixels().places(y)) {
        return false;
    }
    spot = {geometry.xPixel(x), geometry.yPixel(y)};
    return geometry.contains(spot.x, spot.y);
}

int rounded(double pixels) {
    return static_cast<int>(std::lround(std::clamp(pixels, -kFarthestPixel, kFarthestPixel)));
}

}  // namespace

std::vector<Spot> markerSpots(const PlotSeries& series, const CScreenUtils& geometry) {
    std::vector<Spot> spots;
    const std::size_t columns = asSize(geometry.width) + 1;
    std::vector<bool> taken(columns * (asSize(geometry.height) + 1));
    for (std::size_t i = 0; i < pointCount(series); ++i) {
        Spot spot;
        if (!placed(series, i, geometry, spot)) {
            continue;
        }
        const std::size_t cell = asSize(geometry.originY - spot.y) * columns + asSize(spot.x - geometry.originX);
        if (!taken[cell]) {
            taken[cell] = true;
            spots.push_back(spot);
        }
    }
    return spots;
}

std::vector<Line> markerLines(MarkerKind kind, const Spot& centre, int size) {
    const int h = size / 2;
    const int x = centre.x;
    const int y = centre.y;
    if (kind == MarkerKind::Plus) {
        return {{{x - h, y}, {x + h, y}}, {{x, y + h}, {x, y - h}}};
    }
    if (kind == MarkerKind::Triangle) {
        return {{{x - h, y + h}, {x + h, y + h}}, {{x - h, y + h}, {x, y - h}}, {{x, y - h}, {x + h, y + h}}};
    }
    return {};
}

Box markerBox(const Spot& centre, int size) {
    const int h = size / 2;
    return {centre.x - h, centre.y - h, centre.x + h + 1, centre.y + h + 1};
}

std::vector<Box> barBoxes(const PlotSeries& series, const CScreenUtils& geometry) {
    std::vector<Box> boxes;
    const double gap = series.attributes.barGapPercent;
    const std::size_t edges = series.x.values.empty() ? series.y.size() : series.x.values.size();
    if (gap > 100.0 || edges < 2 || geometry.logX() || geometry.logY()) {
        return boxes;
    }
    const double grade = std::trunc((series.x.at(1) - series.x.at(0)) / geometry.xScale);
    const int halfGap = rounded(std::trunc(grade * std::max(gap, 0.0) / 200.0));
    const std::size_t bars = std::min(series.y.size(), edges - 1);
    for (std::size_t i = 0; i < bars; ++i) {
        if (std::isfinite(series.y[i])) {
            boxes.push_back({geometry.xPixel(series.x.at(i)) + halfGap, geometry.yPixel(series.y[i]),
                             geometry.xPixel(series.x.at(i + 1)) - halfGap, geometry.originY});
        }
    }
    return boxes;
}

Arrow arrowShape(const Spot& start, const Spot& end, double headLength, double headAngle) {
    Arrow arrow{{start, end}, {}};
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double shaft = std::hypot(dx, dy);
    if (shaft < kSmallestHeadedShaft) {
        return arrow;
    }
    const double stroke = std::min(headLength, shaft / 2.0);
    const double direction = std::atan2(dy, dx);
    for (const double side : {-1.0, 1.0}) {
        const double angle = direction + std::numbers::pi + side * headAngle * std::numbers::pi / 180.0;
        arrow.head.push_back(
            {end, {end.x + rounded(stroke * std::cos(angle)), end.y + rounded(stroke * std::sin(angle))}});
    }
    return arrow;
}

std::vector<Arrow> arrows(const PlotSeries& series, const CScreenUtils& geometry, double lengthScale) {
    std::vector<Arrow> result;
    const SeriesAtrType& attributes = series.attributes;
    const double scale = attributes.arrowScale * lengthScale;
    const std::size_t n = std::min({pointCount(series), series.vx.size(), series.vy.size()});
    for (std::size_t i = 0; i < n; ++i) {
        const double dx = series.vx[i] * scale;
        const double dy = series.vy[i] * scale;
        Spot start;
        if (!std::isfinite(dx) || !std::isfinite(dy) || !placed(series, i, geometry, start)) {
            continue;
        }
        result.push_back(arrowShape(start, {start.x + rounded(dx), start.y - rounded(dy)},
                                    attributes.arrowHeadLength * lengthScale, attributes.arrowHeadAngle));
    }
    return result;
}

}  // namespace vorlan
