#include "plot/PaintPane.h"

#include <algorithm>
#include <cmath>

#include "model/Index.h"
#include "plot/PaintSeries.h"
#include "plot/PointNames.h"
#include "plot/QtText.h"
#include "plot/SPlotFrame.h"
#include "plot/STable.h"
#include "plot/SeriesShapes.h"
#include "plot/SlopeTriangle.h"

namespace vorlan {

namespace {

constexpr char kTooSmall[] = "Increase Size to View Data";
constexpr int kPanelGap = 8;
constexpr int kPanelLineGap = 2;
constexpr std::size_t kMostPanelLines = 20;  // that one line of a panel is broken into

std::vector<QLine> qtLines(const std::vector<Line>& lines) {
    std::vector<QLine> result;
    for (const Line& line : lines) {
        result.emplace_back(line.from.x, line.from.y, line.to.x, line.to.y);
    }
    return result;
}

class PanePainter {
  public:
    PanePainter(QPainter& painter, const QRect& area, const RenderOptions& options)
        : painter_(painter), area_(area), options_(options), measure_(painter.device(), options.fontScale) {}

    std::optional<CScreenUtils> operator()(std::monostate) { return std::nullopt; }

    std::optional<CScreenUtils> operator()(const PaneMessage& message) {
        drawFitted(painter_, area_, QString::fromStdString(message.text),
                   qtFont(FontDescription(), options_.fontScale));
        return std::nullopt;
    }

    std::optional<CScreenUtils> operator()(const TextPanel& panel) {
        const int gap = scaled(kPanelGap);
        const int height = measure_.height(panel.font, 1.0);
        std::vector<PlacedText> texts;
        int top = area_.top() + gap;
        for (const std::string& line : panel.lines) {
            const int left = area_.left() + gap;
            for (const std::string& shown :
                 wrapped(line, panel.font, area_.width() - 2 * gap, measure_, kMostPanelLines)) {
                texts.push_back(
                    {shown, {left, top, left + measure_.width(shown, panel.font, 1.0), top + height}, panel.font});
                top += height;
            }
            top += (line.find_first_not_of(' ') == std::string::npos ? height : 0) + scaled(kPanelLineGap);
        }
        drawTexts(painter_, texts, measure_, options_.fontScale);
        return std::nullopt;
    }

    std::optional<CScreenUtils> operator()(const TableContent& content) {
        STable table(content);
        table.fitInto(paneBox(), measure_);
        const TableShapes shapes = table.shapes(paneBox(), measure_);
        if (!shapes.complete) {
            return (*this)(PaneMessage{kTooSmall});
        }
        drawLines(shapes.rules, linePen(0, 1, 0, options_.lengthScale));
        drawTexts(painter_, shapes.texts, measure_, options_.fontScale);
        return std::nullopt;
    }

    std::optional<CScreenUtils> operator()(const Diagram& diagram) {
        const FrameLayout layout = SPlotFrame(diagram, measure_, options_.lengthScale).layout(paneBox());
        if (layout.state == FrameLayout::State::NoData) {
            return (*this)(PaneMessage{kNoDataText});
        }
        if (layout.state == FrameLayout::State::TooSmall) {
            return (*this)(PaneMessage{kTooSmall});
        }
        drawLines(layout.strokes, linePen(0, 1, 0, options_.lengthScale));
        drawTexts(painter_, layout.texts, measure_, options_.fontScale);
        const SAxis& axis = layout.axes.front();
        drawLines(layout.grid, linePen(axis.gridColour, axis.gridPenWidth, axis.gridPenStyle, options_.lengthScale));
        std::vector<int> penStyles;  // of the legend's entries
        for (const PlotSeries& series : diagram.plot.series) {
            const int style =
                paintSeries(painter_, series, layout.geometry, {options_.lengthScale, options_.background, paneBox()});
            if (!series.attributes.legendText.empty()) {
                penStyles.push_back(style);
            }
        }
        drawTriangles(diagram, layout.geometry, false);
        painter_.setPen(Qt::black);
        drawTexts(painter_, pointTexts(diagram, layout.geometry, measure_, options_.lengthScale), measure_,
                  options_.fontScale);
        SLegend legend = layout.legend;
        for (std::size_t i = 0; i < std::min(legend.entries.size(), penStyles.size()); ++i) {
            legend.entries[i].attributes.penStyle = penStyles[i];
        }
        drawLegend(legend);
        drawTriangles(diagram, layout.geometry, true);
        return layout.geometry;
    }

  private:
    int scaled(int pixels) const { return static_cast<int>(std::lround(pixels * options_.lengthScale)); }
    Box paneBox() const { return {area_.left(), area_.top(), area_.right() + 1, area_.bottom() + 1}; }

    void drawLines(const std::vector<Line>& lines, const QPen& pen) {
        painter_.setPen(pen);
        const std::vector<QLine> strokes = qtLines(lines);
        painter_.drawLines(strokes.data(), asInt(strokes.size()));
        painter_.setPen(Qt::black);
    }

    void drawTriangles(const Diagram& diagram, const CScreenUtils& geometry, bool held) {
        for (const SlopeTriangle& triangle : diagram.triangles) {
            if (triangle.held == held) {
                drawTriangle(
                    slopeTriangleShape(triangle, geometry, diagram.frame.labelFont, measure_, options_.lengthScale),
                    geometry);
            }
        }
    }

    void drawTriangle(const SlopeTriangleShape& shape, const CScreenUtils& geometry) {
        painter_.setPen(linePen(0, 1, 0, options_.lengthScale));
        const CScreenUtils& g = geometry;
        const Box plotArea{g.originX, g.originY - g.height, g.originX + g.width, g.originY};
        strokePolylines(painter_, clipped({{shape.slope, shape.legs}}, plotArea));
        drawTexts(painter_, shape.texts, measure_, options_.fontScale);
    }

    void drawLegend(const SLegend& legend) {
        if (legend.empty()) {
            return;
        }
        if (legend.inPlotArea) {
            const Box& box = legend.box;
            painter_.fillRect(QRect(box.left, box.top, box.width(), box.height()), options_.background);
        }
        drawTexts(painter_, legend.title, measure_, options_.fontScale);
        for (const SLegend::Entry& entry : legend.entries) {
            paintLegendSample(painter_, entry, entry.text.box.height(), options_.lengthScale, options_.background);
            painter_.setPen(Qt::black);
            drawTexts(painter_, std::span(&entry.text, 1), measure_, options_.fontScale);
            drawTexts(painter_, entry.more, measure_, options_.fontScale);
        }
    }

    QPainter& painter_;
    QRect area_;
    RenderOptions options_;
    QtTextMeasure measure_;
};

}  // namespace

std::optional<CScreenUtils> paintPane(QPainter& painter, const QRect& area, const PaneContent& content,
                                      const RenderOptions& options) {
    if (area.isEmpty()) {
        return std::nullopt;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    painter.setClipRect(area, Qt::IntersectClip);
    painter.fillRect(area, options.background);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    const std::optional<CScreenUtils> geometry = std::visit(PanePainter(painter, area, options), content);
    painter.restore();
    return geometry;
}

}  // namespace vorlan
