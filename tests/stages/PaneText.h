#pragma once

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>

#include "model/Text.h"
#include "plot/PaneContent.h"

namespace vorlan::test {

/// An end of an axis or a step by its mode: the value, or that the data decide.
inline std::string ruled(std::int32_t mode, double value) {
    return mode == 0 ? "data" : formatted("%g", value);
}

/// Size, first and last numbers and sum of a column.
inline std::string numbersText(const std::vector<double>& values) {
    std::string text = formatted("%zu:", values.size());
    double sum = 0.0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        sum += std::isnan(values[i]) ? 0.0 : values[i];
        if (i == 4 && values.size() > 8) {
            text += " ..";
        }
        if (i < 4 || i + 2 >= values.size() || values.size() <= 8) {
            text += formatted(" %.5g", values[i]);
        }
    }
    return text + formatted(" sum %.7g", sum);
}

inline std::string seriesText(const PlotSeries& series) {
    const SeriesAtrType& a = series.attributes;
    std::string text =
        "  " + a.legendText +
        formatted(": colour %06X pen %d style %d", static_cast<unsigned>(a.colour), a.penWidth, a.penStyle);
    switch (a.style) {
        case SeriesStyle::Line:
            break;
        case SeriesStyle::Markers:
        case SeriesStyle::LineAndMarkers:
            text += formatted(" markers %d of %d%s", static_cast<int>(a.markerKind), a.markerSize,
                              a.style == SeriesStyle::Markers ? " alone" : "");
            break;
        case SeriesStyle::Bars:
            text += formatted(" bars, gap %g %%", a.barGapPercent);
            break;
        case SeriesStyle::Arrows:
            text += formatted(" arrows, scale %g head %d at %g, in the legend %g", a.arrowScale, a.arrowHeadLength,
                              a.arrowHeadAngle, series.legendArrow);
            text += "\n    vx " + numbersText(series.vx) + "\n    vy " + numbersText(series.vy);
            break;
    }
    text += series.x.values.empty() ? formatted("\n    x from %.5g by %.5g", series.x.start, series.x.step)
                                    : "\n    x " + numbersText(series.x.values);
    return text + "\n    y " + numbersText(series.y) + "\n";
}

/// Everything that decides the picture of a diagram but its fonts, grid and ticks.
inline std::string diagramText(const Diagram& diagram) {
    const FrameAttributesType& f = diagram.frame;
    std::string text = "diagram \"" + f.plotTitle + "\"\n";
    text += "  x \"" + f.xTitle + "\" " + ruled(f.xMinMode, f.xMin) + " to " + ruled(f.xMaxMode, f.xMax) + " by " +
            ruled(f.xStepMode, f.xStep) + formatted(", %d digits", f.xDigits) +
            (diagram.duration ? formatted(", duration %g", *diagram.duration) : "") + "\n";
    text += "  y \"" + f.yTitle + "\" " + ruled(f.yMinMode, f.yMin) + " to " + ruled(f.yMaxMode, f.yMax) + " by " +
            ruled(f.yStepMode, f.yStep) + formatted(", %d digits\n", f.yDigits);
    text += formatted("  scale %d of", f.scaleType);
    for (const ScaleType type : diagram.allowedScales) {
        text += formatted(" %d", static_cast<int>(type));
    }
    text += "\n";
    for (const PlotSeries& series : diagram.plot.series) {
        text += seriesText(series);
    }
    for (const Diagram::PointLabel& label : diagram.labels) {
        text += formatted("  label at %g, %g: ", label.x, label.y) + label.text + "\n";
    }
    if (diagram.planRoom) {
        text += formatted("  plan with room %g\n", *diagram.planRoom);
    }
    return text;
}

inline std::string tableText(const TableContent& table) {
    std::string text = "table \"" + table.title + "\" of " + table.numberFormat + "\n";
    for (const std::string& header : table.headers) {
        text += " | " + header;
    }
    text += "\n";
    for (const TableContent::Row& row : table.rows) {
        text += "  " + row.title;
        for (std::size_t i = 0; i < row.values.size(); ++i) {
            const bool empty = std::find(row.empty.begin(), row.empty.end(), i) != row.empty.end();
            text += empty ? " |" : formatted(" | %.6g", row.values[i]);
        }
        text += "\n";
    }
    return text + (table.note.empty() ? "" : "  " + table.note + "\n");
}

inline std::string paneText(const PaneContent& content) {
    if (const auto* message = std::get_if<PaneMessage>(&content)) {
        return "\"" + message->text + "\"\n";
    }
    if (const auto* diagram = std::get_if<Diagram>(&content)) {
        return diagramText(*diagram);
    }
    if (const auto* table = std::get_if<TableContent>(&content)) {
        return tableText(*table);
    }
    if (const auto* panel = std::get_if<TextPanel>(&content)) {
        return std::accumulate(
            panel->lines.begin(), panel->lines.end(), std::string("text\n"),
            [](const std::string& all, const std::string& line) { return all + "  " + line + "\n"; });
    }
    return "nothing\n";
}

}  // namespace vorlan::test
