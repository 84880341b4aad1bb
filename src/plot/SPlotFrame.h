#pragma once

#include <vector>

#include "plot/AxisLimits.h"
#include "plot/CScreenUtils.h"
#include "plot/Diagram.h"
#include "plot/SAxis.h"
#include "plot/SLegend.h"

namespace vorlan {

/// Everything of a diagram but its series, placed in a pane.
struct FrameLayout {
    enum class State { Drawn, NoData, TooSmall };
    State state = State::NoData;
    CScreenUtils geometry;
    std::vector<SAxis> axes;    ///< bottom, left; of a full frame also top and right
    std::vector<Line> strokes;  ///< axis lines, ticks and marks
    std::vector<Line> grid;
    std::vector<PlacedText> texts;  ///< titles and labels
    SLegend legend;
};

/// Lays a diagram out: room for the plot title above, the axis titles and labels, the legend; the rest is the plot
/// area, whose axes are cut to whole pixels per mark.
class SPlotFrame {
  public:
    /// lengthScale: pixels per stored pixel of ticks, offsets and gaps. The arguments must outlive the frame.
    SPlotFrame(const Diagram& diagram, const TextMeasure& measure, double lengthScale = 1.0);

    FrameLayout layout(const Box& pane) const;

    /// The stored scale type if the diagram allows it, else the first that it allows. Bars and arrows allow only
    /// linear axes.
    static ScaleType effectiveScale(const Diagram& diagram);

  private:
    const Diagram& diagram_;
    const TextMeasure& measure_;
    double scale_;
};

/// How the frame attributes and the duration of a time series rule the axes.
AxisRule xAxisRule(const Diagram& diagram);
AxisRule yAxisRule(const FrameAttributesType& frame);

}  // namespace vorlan
