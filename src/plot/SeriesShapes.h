#pragma once

#include <vector>

#include "plot/CScreenUtils.h"
#include "plot/Diagram.h"
#include "plot/Shapes.h"

namespace vorlan {

/// Positions of the markers: the points on the plot area, each pixel once.
std::vector<Spot> markerSpots(const PlotSeries& series, const CScreenUtils& geometry);

/// Strokes of a marker around centre; h = size div 2. Circles and squares are boxes instead (see markerBox).
std::vector<Line> markerLines(MarkerKind kind, const Spot& centre, int size);
/// centre - h .. centre + h, both ends included.
Box markerBox(const Spot& centre, int size);

/// Bars of a histogram down to the axis: bar i spans x[i] .. x[i + 1] less half a gap on each side and is y[i] high.
/// half gap = trunc(trunc((x1 - x0) / units per pixel) * percent / 200). None above 100 percent or for fewer than
/// two edges.
std::vector<Box> barBoxes(const PlotSeries& series, const CScreenUtils& geometry);

struct Arrow {
    Line shaft;
    std::vector<Line> head;  ///< two strokes, or none on a shaft below two pixels
};

/// Arrow from start to end; the strokes of the head are headLength long, half the shaft when that is shorter, and
/// stand headAngle degrees off the shaft.
Arrow arrowShape(const Spot& start, const Spot& end, double headLength, double headAngle);

/// One arrow per point on the plot area, arrowScale * lengthScale pixels per unit of the vector.
std::vector<Arrow> arrows(const PlotSeries& series, const CScreenUtils& geometry, double lengthScale);

}  // namespace vorlan
