#pragma once

#include <vector>

#include "plot/PolylineEnvelope.h"

namespace vorlan {

/// The pixels of solid lines one pixel wide, as a raster painter sets them: in a dense line every pixel column is one
/// unbroken run, so few boxes cover what thousands of strokes would.
struct ColumnRuns {
    std::vector<Box> boxes;     ///< one pixel high or one wide, without overlap within a line
    std::vector<Line> bridges;  ///< strokes between columns that are not neighbours
};

/// The runs inside area. Strokes from a column to the next one on the right lie in the left column but for their last
/// pixel.
ColumnRuns columnRuns(const Polylines& lines, const Box& area);

}  // namespace vorlan
