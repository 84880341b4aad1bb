#pragma once

#include <QPainter>

#include "plot/CScreenUtils.h"
#include "plot/ColumnRuns.h"
#include "plot/Diagram.h"
#include "plot/PolylineEnvelope.h"
#include "plot/SLegend.h"

namespace vorlan {

/// red + 256 green + 65536 blue
QColor colourOf(std::int32_t packed);

/// A pen of at least one pixel; style 0 solid, 1 dashed, 2 dotted, 3 dash-dot, 4 dash-dot-dot.
QPen linePen(std::int32_t colour, int width, int style, double lengthScale);

/// Draws polylines in short runs: a wide pen takes quadratic time over a long one.
void strokePolylines(QPainter& painter, const Polylines& lines);

/// Draws runs in the colour of a solid pen of one pixel: the same pixels as strokePolylines(), in a fraction of the
/// time.
void fillColumnRuns(QPainter& painter, const ColumnRuns& runs, const QPen& pen);

/// What the painting of a series depends on besides its own attributes.
struct SeriesOptions {
    double lengthScale = 1.0;
    QColor background = Qt::white;  ///< the inside of markers
    Box pane = {};                  ///< where arrows end that are too long
};

/// Draws one series: lines and bars clipped to the plot area, markers at points on it whole, arrows from there clipped
/// to the pane. Returns the pen style of its line, which is solid where the dashes of the attributes would not be told
/// apart.
int paintSeries(QPainter& painter, const PlotSeries& series, const CScreenUtils& geometry,
                const SeriesOptions& options);

/// Draws the sample of a legend entry as its series is drawn.
void paintLegendSample(QPainter& painter, const SLegend::Entry& entry, int lineHeight, double lengthScale,
                       const QColor& background);

}  // namespace vorlan
