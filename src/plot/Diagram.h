#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/FrameAttributes.h"
#include "model/SeriesAttributes.h"
#include "plot/ValueBlocks.h"

namespace vorlan {

/// Positions of a series' points: evenly spaced (no array is held) or one value per point.
struct SeriesX {
    double start = 0.0;
    double step = 1.0;
    std::vector<double> values;  ///< used instead of start and step when not empty

    double at(std::size_t i) const { return values.empty() ? start + static_cast<double>(i) * step : values[i]; }
};

/// One data series: points in order and how they are drawn. A non-finite y breaks the line.
/// Arrows (style 4) take their components from vx and vy; bars (style 3) need one edge more than bars.
struct PlotSeries {
    SeriesX x;
    std::vector<double> y;
    ValueBlocks blocks;  ///< of y as it stands, for a long series that is painted often; others do without
    std::vector<double> vx;
    std::vector<double> vy;
    SeriesAtrType attributes;
    double legendArrow = 0.0;  ///< length of the sample arrow in the legend, units of the vectors; 0: the usual sample
};

/// The data of a diagram: its series, drawn in order.
struct SPlot {
    std::vector<PlotSeries> series;

    bool hasPoints() const;
};

/// A right triangle whose sloping side follows the power law y (x / from)^exponent between two limits of x.
struct SlopeTriangle {
    double from = 0.0;
    double to = 0.0;
    double y = 0.0;  ///< at from
    double exponent = 0.0;
    std::string name;  ///< of the slope, as "-5/3"
    /// Under the user's hand: it stands over the legend, which stays where it is with the whole diagram.
    bool held = false;
};

/// A complete diagram: the stored frame attributes and the data.
struct Diagram {
    FrameAttributesType frame;
    SPlot plot;
    /// Set for time series: the record's duration, s. The time axis then runs from the frame's lower limit to that
    /// limit + duration unless the frame says that both ends come from the data.
    std::optional<double> duration;
    /// Scale types that the plot options may offer, in the dialog's order; the first is used when the frame holds
    /// another one.
    std::vector<ScaleType> allowedScales{ScaleType::Linear};
    /// Text beside points of the data, in data units (names of the probes in a plan).
    struct PointLabel {
        double x;
        double y;
        std::string text;
        std::string detail = {};  ///< what a read-out tells of the point
    };
    std::vector<PointLabel> labels;
    /// Drawn over the series; they move no limits and have no entry in the legend.
    std::vector<SlopeTriangle> triangles;
    /// Of a plan: its automatic limits enclose the markers, arrows and names at its points, points on one spot get this
    /// room around them, and its labels have the digits that they need. Data units.
    std::optional<double> planRoom;
    /// Digits of the labels of a diagram that nobody has changed; with them and automatic mark steps, labels get the
    /// digits that they need.
    struct UsualDigits {
        std::int32_t x = FrameAttributesType().xDigits;
        std::int32_t y = FrameAttributesType().yDigits;
    };
    UsualDigits usualDigits = {};
    /// Remarks on the data, below the diagram.
    std::vector<std::string> notes = {};
};

/// What a pane says in the place of a diagram without a value.
inline constexpr const char* kNoDataText = "No data to plot ! Reset series to continue.";

/// A ruled text table. The first header is that of the row titles. A row may have fewer values than there are columns.
struct TableContent {
    struct Row {
        std::string title;
        std::vector<double> values;
        std::vector<std::size_t> empty = {};  ///< indexes of values that nothing has given: their cells stay empty
    };
    std::string title;
    std::vector<std::string> headers;
    std::vector<Row> rows;
    std::string numberFormat = "%.2f";
    FontDescription font;
    std::string note = {};  ///< a line below the rows
};

/// Lines of text, top to bottom.
struct TextPanel {
    std::vector<std::string> lines;
    FontDescription font;
};

/// One line in the middle of the pane that says why there is no diagram.
struct PaneMessage {
    std::string text;
};

}  // namespace vorlan
