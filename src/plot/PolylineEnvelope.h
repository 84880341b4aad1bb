#pragma once

#include <optional>
#include <vector>

#include "plot/CScreenUtils.h"
#include "plot/Diagram.h"
#include "plot/Shapes.h"

namespace vorlan {

/// The lines of a series in pixels: one polyline per stretch of points that have a place on the axes.
///
/// Neighbouring points of one pixel column are replaced by the first, the lowest, the highest and the last of them.
/// Pixels are whole numbers, so the line covers the same pixels as one through every point.
struct Polylines {
    std::vector<std::vector<Spot>> parts;
    bool dense = false;  ///< several points fell into a column: a dash pattern would not be recognised
};
Polylines polylineEnvelope(const PlotSeries& series, const CScreenUtils& geometry);

/// The part of them that may touch the pixel columns left to right; all of them where the points are not evenly spaced.
Polylines polylineEnvelope(const PlotSeries& series, const CScreenUtils& geometry, int left, int right);

/// The polylines through every point, for comparison.
Polylines fullPolyline(const PlotSeries& series, const CScreenUtils& geometry);

/// The part of a line inside area, edges included.
std::optional<Line> clippedLine(const Line& line, const Box& area);

/// lines cut at the edges of area, for devices that cannot clip.
Polylines clipped(const Polylines& lines, const Box& area);

}  // namespace vorlan
