#pragma once

#include <optional>

#include "plot/AxisLimits.h"
#include "plot/Diagram.h"

namespace vorlan {

struct DataExtent {
    DataInterval x;
    DataInterval y;
};

/// Points that a series has: values without a position and positions without a value do not count.
std::size_t pointCount(const PlotSeries& series);

/// Smallest box around the points that have a place on the axes: finite, and positive where an axis is logarithmic.
/// Empty when there is no such point.
std::optional<DataExtent> seriesExtent(const PlotSeries& series, bool logX, bool logY);
/// The same around all series.
std::optional<DataExtent> dataExtent(const SPlot& plot, bool logX, bool logY);

}  // namespace vorlan
