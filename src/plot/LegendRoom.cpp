#include "plot/LegendRoom.h"

#include <algorithm>
#include <cmath>

#include "plot/PointNames.h"
#include "plot/PolylineEnvelope.h"
#include "plot/SeriesShapes.h"
#include "plot/SlopeTriangle.h"

namespace vorlan {

namespace {

Box grown(const Box& box, int by) {
    return {box.left - by, box.top - by, box.right + by, box.bottom + by};
}

// The last pixels of a box lie before its right and lower sides.
bool touches(const Box& box, const Line& line) {
    return clippedLine(line, {box.left, box.top, box.right - 1, box.bottom - 1}).has_value();
}

bool lineTouches(const Box& box, const std::vector<Spot>& line) {
    // A point without neighbours is a dot.
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (touches(box, {line[i > 0 ? i - 1 : 0], line[i]})) {
            return true;
        }
    }
    return false;
}

bool linesTouch(const Box& box, const PlotSeries& series, const CScreenUtils& geometry) {
    const Polylines lines = polylineEnvelope(series, geometry, box.left, box.right);
    return std::any_of(lines.parts.begin(), lines.parts.end(),
                       [&](const std::vector<Spot>& part) { return lineTouches(box, part); });
}

bool markersTouch(const Box& box, const PlotSeries& series, const CScreenUtils& geometry, int size) {
    const std::vector<Spot> spots = markerSpots(series, geometry);
    return std::any_of(spots.begin(), spots.end(), [&](const Spot& s) { return markerBox(s, size).overlaps(box); });
}

bool barsTouch(const Box& box, const PlotSeries& series, const CScreenUtils& geometry) {
    const std::vector<Box> bars = barBoxes(series, geometry);
    return std::any_of(bars.begin(), bars.end(), [&](const Box& bar) { return bar.overlaps(box); });
}

bool arrowsTouch(const Box& box, const PlotSeries& series, const CScreenUtils& geometry, double lengthScale) {
    const std::vector<Arrow> all = arrows(series, geometry, lengthScale);
    return std::any_of(all.begin(), all.end(), [&](const Arrow& arrow) {
        return touches(box, arrow.shaft) ||
               std::any_of(arrow.head.begin(), arrow.head.end(), [&](const Line& line) { return touches(box, line); });
    });
}

}  // namespace

bool coversData(const Box& box, const Diagram& diagram, const CScreenUtils& geometry, const TextMeasure& measure,
                double lengthScale) {
    const auto comesIn = [&](const PlotSeries& series) {
        const SeriesAtrType& attributes = series.attributes;
        const auto scaled = [lengthScale](int pixels) { return static_cast<int>(std::ceil(pixels * lengthScale)); };
        // Pens are wider than the lines that they follow.
        const Box reach = grown(box, scaled(std::max(attributes.penWidth, 1)) / 2);
        const int size = scaled(attributes.markerSize);
        switch (attributes.style) {
            case SeriesStyle::Line:
                return linesTouch(reach, series, geometry);
            case SeriesStyle::Markers:
                return markersTouch(reach, series, geometry, size);
            case SeriesStyle::LineAndMarkers:
                return linesTouch(reach, series, geometry) || markersTouch(reach, series, geometry, size);
            case SeriesStyle::Bars:
                return barsTouch(reach, series, geometry);
            case SeriesStyle::Arrows:
                return arrowsTouch(reach, series, geometry, lengthScale);
        }
        return false;
    };
    const auto namesTouch = [&](const std::vector<PlacedText>& names) {
        return std::any_of(names.begin(), names.end(), [&](const PlacedText& name) { return name.box.overlaps(box); });
    };
    const auto triangleComesIn = [&](const SlopeTriangle& triangle) {
        const SlopeTriangleShape shape =
            slopeTriangleShape(triangle, geometry, diagram.frame.labelFont, measure, lengthScale);
        return !triangle.held &&
               (lineTouches(box, shape.slope) || lineTouches(box, shape.legs) || namesTouch(shape.texts));
    };
    return std::any_of(diagram.plot.series.begin(), diagram.plot.series.end(), comesIn) ||
           std::any_of(diagram.triangles.begin(), diagram.triangles.end(), triangleComesIn) ||
           namesTouch(pointTexts(diagram, geometry, measure, lengthScale));
}

}  // namespace vorlan
