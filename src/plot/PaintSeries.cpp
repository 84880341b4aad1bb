#include "plot/PaintSeries.h"

#include <QPaintEngine>
#include <QPolygon>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "model/Index.h"
#include "plot/PaintMarkers.h"
#include "plot/SeriesShapes.h"

namespace vorlan {

namespace {

constexpr std::size_t kRun = 100;
constexpr int kNarrowBar = 3;
constexpr double kBarTint = 0.55;  // share of white in the inside of a bar
constexpr int kLargestPen = 100;
constexpr int kLargestMarker = 400;
constexpr double kLongestDashed = 8.0;  // widths of the plot area

int scaledSize(int stored, int largest, double lengthScale) {
    return static_cast<int>(std::lround(std::clamp(stored, 1, largest) * lengthScale));
}

QPen seriesPen(const SeriesAtrType& attributes, int style, double lengthScale) {
    return linePen(attributes.colour, attributes.penWidth, style, lengthScale);
}

void drawLine(QPainter& painter, const Line& line) {
    painter.drawLine(line.from.x, line.from.y, line.to.x, line.to.y);
}

Box plotArea(const CScreenUtils& geometry) {
    return {geometry.originX, geometry.originY - geometry.height, geometry.originX + geometry.width, geometry.originY};
}

// Scalable vector graphics are written without clipping.
bool clipsByItself(const QPainter& painter) {
    return painter.paintEngine() == nullptr || painter.paintEngine()->type() != QPaintEngine::SVG;
}

void paintMarkersOf(QPainter& painter, const SeriesAtrType& attributes, const std::vector<Spot>& spots,
                    double lengthScale, const QColor& background) {
    // Markers are small: a thin pen keeps their shapes apart, an empty inside keeps lines out of them.
    paintMarkers(painter, spots,
                 {attributes.markerKind, scaledSize(attributes.markerSize, kLargestMarker, lengthScale),
                  linePen(attributes.colour, 1, 0, lengthScale), background});
}

// A bar stands on an axis, which closes it; closed: it has a lower border of its own.
void paintBar(QPainter& painter, const SeriesAtrType& attributes, const Box& box, double lengthScale,
              bool closed = false) {
    if (box.width() <= 0 || box.height() <= 0) {
        return;
    }
    const QColor colour = colourOf(attributes.colour);
    const auto lighter = [](int part) { return static_cast<int>(part + (255 - part) * kBarTint); };
    const QColor tint(lighter(colour.red()), lighter(colour.green()), lighter(colour.blue()));
    const int border = scaledSize(attributes.penWidth, kLargestPen, lengthScale);
    const QRect rect(box.left, box.top, box.width(), box.height());
    painter.fillRect(rect, colour);
    if (box.width() >= kNarrowBar * border && box.height() > border) {
        painter.fillRect(rect.adjusted(border, border, -border, closed ? -border : 0), tint);
    }
}

// The painter's pen draws the shafts; heads are too small for dashes.
void paintArrows(QPainter& painter, const std::vector<Arrow>& arrows) {
    for (const Arrow& arrow : arrows) {
        drawLine(painter, arrow.shaft);
    }
    QPen solid = painter.pen();
    solid.setStyle(Qt::SolidLine);
    painter.setPen(solid);
    for (const Arrow& arrow : arrows) {
        for (const Line& stroke : arrow.head) {
            drawLine(painter, stroke);
        }
    }
}

Arrow clipped(const Arrow& arrow, const Box& area) {
    Arrow result;
    result.shaft = clippedLine(arrow.shaft, area).value_or(Line{arrow.shaft.from, arrow.shaft.from});
    for (const Line& stroke : arrow.head) {
        if (const std::optional<Line> line = clippedLine(stroke, area)) {
            result.head.push_back(*line);
        }
    }
    return result;
}

// Pixels of the device are those of the painter, and set one by one.
bool paintsPixels(const QPainter& painter) {
    return painter.paintEngine() != nullptr && painter.paintEngine()->type() == QPaintEngine::Raster &&
           painter.deviceTransform().type() <= QTransform::TxTranslate;
}

// Dashes along a curve that winds much cannot be told from its windings.
bool winds(const Polylines& lines, int width) {
    double length = 0.0;
    for (const std::vector<Spot>& part : lines.parts) {
        for (std::size_t i = 1; i < part.size(); ++i) {
            length += std::hypot(part[i].x - part[i - 1].x, part[i].y - part[i - 1].y);
        }
    }
    return length > kLongestDashed * width;
}

// A column of falling values goes down, up and down again: dashes would fill each other's gaps.
Polylines withoutReturns(Polylines lines) {
    for (std::vector<Spot>& part : lines.parts) {
        std::vector<Spot> straight;
        for (const Spot& spot : part) {
            straight.push_back(spot);
            const std::size_t n = straight.size();
            if (n >= 4 && straight[n - 4] == straight[n - 2] && straight[n - 3] == straight[n - 1] &&
                straight[n - 1].x == straight[n - 2].x) {
                straight.resize(n - 2);
            }
        }
        part = std::move(straight);
    }
    return lines;
}

// Returns the pen style that was used.
int paintLine(QPainter& painter, const PlotSeries& series, const CScreenUtils& geometry, double lengthScale) {
    const Polylines lines = polylineEnvelope(series, geometry);
    const int wanted = series.attributes.penStyle;
    const int style = lines.dense || (wanted != 0 && winds(lines, geometry.width)) ? 0 : wanted;
    const QPen pen = seriesPen(series.attributes, style, lengthScale);
    if (lines.dense && pen.width() == 1 && paintsPixels(painter)) {
        Box area = plotArea(geometry);
        ++area.right;  // both edges belong to the plot area
        ++area.bottom;
        fillColumnRuns(painter, columnRuns(lines, area), pen);
        return style;
    }
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const Polylines drawn = style == 0 ? lines : withoutReturns(lines);
    strokePolylines(painter, clipsByItself(painter) ? drawn : clipped(drawn, plotArea(geometry)));
    return style;
}

// Fine pictures have room for smooth curves; on a screen whole pixels are sharper.
void smoothen(QPainter& painter, double lengthScale) {
    if (lengthScale > 1.0 && paintsPixels(painter)) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(0.5, 0.5);  // coordinates name pixels, whose middle a line follows
    }
}

}  // namespace

QColor colourOf(std::int32_t packed) {
    const auto bits = static_cast<std::uint32_t>(packed);
    return QColor(asInt(bits & 255U), asInt(bits >> 8U & 255U), asInt(bits >> 16U & 255U));
}

QPen linePen(std::int32_t colour, int width, int style, double lengthScale) {
    constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine};
    const int pixels = std::max(1, scaledSize(width, kLargestPen, lengthScale));
    QPen pen(colourOf(colour), pixels, style >= 0 && style < 5 ? styles[style] : Qt::SolidLine);
    if (pixels > 1 && pen.style() == Qt::SolidLine) {
        pen.setCapStyle(Qt::RoundCap);
        pen.setJoinStyle(Qt::RoundJoin);
    }
    return pen;
}

void strokePolylines(QPainter& painter, const Polylines& lines) {
    QPen pen = painter.pen();
    const QList<qreal> pattern = pen.style() == Qt::SolidLine ? QList<qreal>() : pen.dashPattern();
    const double period = std::accumulate(pattern.begin(), pattern.end(), 0.0) * pen.widthF();
    // A thin solid line is drawn point by point however long it is, and whole: every end of a run is a cap.
    const bool thin = pen.width() <= 1 && pattern.isEmpty();
    for (const std::vector<Spot>& part : lines.parts) {
        double travelled = 0.0;
        const std::size_t step = thin ? part.size() : kRun;
        for (std::size_t first = 0; first + 1 < part.size(); first += step) {
            const std::size_t last = std::min(first + step, part.size() - 1);
            QPolygon run;
            run.reserve(asInt(last - first) + 1);
            double length = 0.0;
            for (std::size_t i = first; i <= last; ++i) {
                run << QPoint(part[i].x, part[i].y);
                length += i > first ? std::hypot(part[i].x - part[i - 1].x, part[i].y - part[i - 1].y) : 0.0;
            }
            if (period > 0.0) {
                // The pattern goes on where the run before ended.
                pen.setDashOffset(std::fmod(travelled, period) / pen.widthF());
                painter.setPen(pen);
            }
            painter.drawPolyline(run);
            travelled += length;
        }
    }
}

void fillColumnRuns(QPainter& painter, const ColumnRuns& runs, const QPen& pen) {
    std::vector<QRect> boxes;
    boxes.reserve(runs.boxes.size());
    for (const Box& box : runs.boxes) {
        boxes.emplace_back(box.left, box.top, box.width(), box.height());
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(pen.color());
    painter.drawRects(boxes.data(), asInt(boxes.size()));
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    for (const Line& bridge : runs.bridges) {
        drawLine(painter, bridge);
    }
}

int paintSeries(QPainter& painter, const PlotSeries& series, const CScreenUtils& geometry,
                const SeriesOptions& options) {
    const double lengthScale = options.lengthScale;
    const SeriesAtrType& attributes = series.attributes;
    int penStyle = attributes.penStyle;
    painter.save();
    if (attributes.style == SeriesStyle::Line || attributes.style == SeriesStyle::LineAndMarkers) {
        painter.save();
        painter.setClipRect(
            QRect(geometry.originX, geometry.originY - geometry.height, geometry.width + 1, geometry.height + 1),
            Qt::IntersectClip);
        smoothen(painter, lengthScale);
        penStyle = paintLine(painter, series, geometry, lengthScale);
        painter.restore();
    }
    switch (attributes.style) {
        case SeriesStyle::Line:
            break;
        case SeriesStyle::LineAndMarkers:
        case SeriesStyle::Markers:
            // Whole, also on an edge of the plot area.
            smoothen(painter, lengthScale);
            paintMarkersOf(painter, attributes, markerSpots(series, geometry), lengthScale, options.background);
            break;
        case SeriesStyle::Bars:
            for (const Box& box : barBoxes(series, geometry)) {
                paintBar(painter, attributes, box.common(plotArea(geometry)), lengthScale);
            }
            break;
        case SeriesStyle::Arrows: {
            smoothen(painter, lengthScale);
            std::vector<Arrow> visible;
            for (const Arrow& arrow : arrows(series, geometry, lengthScale)) {
                visible.push_back(clipped(arrow, options.pane));
            }
            painter.setPen(seriesPen(attributes, attributes.penStyle, lengthScale));
            paintArrows(painter, visible);
            break;
        }
    }
    painter.restore();
    return penStyle;
}

void paintLegendSample(QPainter& painter, const SLegend::Entry& entry, int lineHeight, double lengthScale,
                       const QColor& background) {
    const SeriesAtrType& attributes = entry.attributes;
    const Spot& start = entry.sampleStart;
    const Spot end{start.x + entry.sampleLength, start.y};
    const Spot middle{start.x + entry.sampleLength / 2, start.y};
    painter.save();
    if (attributes.style != SeriesStyle::Bars) {
        smoothen(painter, lengthScale);
    }
    painter.setPen(seriesPen(attributes, attributes.penStyle, lengthScale));
    switch (attributes.style) {
        case SeriesStyle::Bars: {
            const int half = lineHeight / 4;
            paintBar(painter, attributes, {start.x, start.y - half, end.x, start.y + half}, lengthScale, true);
            break;
        }
        case SeriesStyle::Arrows:
            paintArrows(painter,
                        {arrowShape(start, end, attributes.arrowHeadLength * lengthScale, attributes.arrowHeadAngle)});
            break;
        case SeriesStyle::Line:
            drawLine(painter, {start, end});
            break;
        case SeriesStyle::LineAndMarkers:
            drawLine(painter, {start, end});
            [[fallthrough]];
        case SeriesStyle::Markers:
            paintMarkersOf(painter, attributes, {middle}, lengthScale, background);
            break;
    }
    painter.restore();
}

}  // namespace vorlan
