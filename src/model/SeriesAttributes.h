#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vorlan {

enum class SeriesStyle : int { Line = 0, Markers = 1, LineAndMarkers = 2, Bars = 3, Arrows = 4 };

enum class MarkerKind : int { Plus = 0, Circle = 1, Square = 2, Triangle = 3 };

/// How one data series is drawn. Lives in memory only: no workspace holds it.
struct SeriesAtrType {
    SeriesStyle style = SeriesStyle::Line;
    MarkerKind markerKind = MarkerKind::Circle;
    int markerSize = 5;            ///< pixels
    std::int32_t colour = 0;       ///< red + 256 green + 65536 blue
    int penWidth = 1;              ///< pixels
    int penStyle = 0;              ///< 0 solid, 1 dashed, 2 dotted
    double barGapPercent = 10.0;   ///< share of the grade width left free between bars; above 100 no bars
    std::string legendText;        ///< no legend entry when empty
    double arrowScale = 1.0;       ///< pixels per unit of the vector
    int arrowHeadLength = 8;       ///< pixels
    double arrowHeadAngle = 20.0;  ///< degrees between shaft and stroke
};

using SSeriesAtrArray = std::vector<SeriesAtrType>;

/// Colours of the series of a diagram, by index (the last for all further ones). The first three are told apart in
/// grey too.
std::int32_t seriesColour(int index);

}  // namespace vorlan
