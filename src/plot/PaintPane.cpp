#include "plot/PaintPane.h"

#include <QPolygon>
#include <algorithm>
#include <cmath>
#include <limits>

namespace vorlan {

namespace {

constexpr int kMargin = 40;

std::optional<CScreenUtils> paintDiagram(QPainter& painter, const QRect& area, const Diagram& diagram) {
    CScreenUtils geometry;
    geometry.originX = area.left() + kMargin;
    geometry.originY = area.bottom() - kMargin;
    geometry.width = area.width() - 2 * kMargin;
    geometry.height = area.height() - 2 * kMargin;
    if (!diagram.plot.hasPoints() || geometry.width < 60 || geometry.height < 40) {
        return std::nullopt;
    }
    geometry.xMin = geometry.yMin = std::numeric_limits<double>::infinity();
    geometry.xMax = geometry.yMax = -geometry.xMin;
    for (const PlotSeries& series : diagram.plot.series) {
        for (std::size_t i = 0; i < series.y.size(); ++i) {
            if (std::isfinite(series.y[i])) {
                geometry.xMin = std::min(geometry.xMin, series.x.at(i));
                geometry.xMax = std::max(geometry.xMax, series.x.at(i));
                geometry.yMin = std::min(geometry.yMin, series.y[i]);
                geometry.yMax = std::max(geometry.yMax, series.y[i]);
            }
        }
    }
    geometry.xMax = std::max(geometry.xMax, geometry.xMin + 1.0);
    geometry.yMax = std::max(geometry.yMax, geometry.yMin + 1.0);
    geometry.xScale = (geometry.xMax - geometry.xMin) / geometry.width;
    geometry.yScale = (geometry.yMax - geometry.yMin) / geometry.height;
    painter.drawLine(geometry.originX, geometry.originY, geometry.originX + geometry.width, geometry.originY);
    painter.drawLine(geometry.originX, geometry.originY, geometry.originX, geometry.originY - geometry.height);
    painter.drawText(QRect(area.left(), area.top(), area.width(), kMargin), Qt::AlignCenter,
                     QString::fromStdString(diagram.frame.plotTitle));
    for (const PlotSeries& series : diagram.plot.series) {
        QPolygon line;
        for (std::size_t i = 0; i < series.y.size(); ++i) {
            if (std::isfinite(series.y[i])) {
                line << QPoint(geometry.xPixel(series.x.at(i)), geometry.yPixel(series.y[i]));
            }
        }
        painter.drawPolyline(line);
    }
    return geometry;
}

}  // namespace

std::optional<CScreenUtils> paintPane(QPainter& painter, const QRect& area, const PaneContent& content,
                                      const RenderOptions&) {
    painter.save();
    painter.fillRect(area, Qt::white);
    painter.setPen(Qt::black);
    painter.setClipRect(area);
    std::optional<CScreenUtils> geometry;
    if (const auto* diagram = std::get_if<Diagram>(&content)) {
        geometry = paintDiagram(painter, area, *diagram);
    } else if (const auto* message = std::get_if<PaneMessage>(&content)) {
        painter.drawText(area, Qt::AlignCenter, QString::fromStdString(message->text));
    }
    painter.restore();
    return geometry;
}

}  // namespace vorlan
