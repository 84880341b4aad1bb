#include "stages/DiagramParts.h"

#include "model/DefaultFrames.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vorlan {

namespace {

constexpr const char* kFrequencyTitle = "Frequency";
constexpr std::array<const char*, 2> kFrequencyUnitTitles = {"Frequency, Hz", "Frequency, Rad/s"};
constexpr int kPenStyles = 3;
// Values from which on finding their blocks once is worth it.
constexpr std::size_t kLongRecord = 20000;

bool holdsNumber(const PlotSeries& series) {
    return std::any_of(series.y.begin(), series.y.end(), [](double y) { return std::isfinite(y); });
}

}  // namespace

Diagram newDiagram(const PaneRequest& request, const SAdvProbe* probe) {
    Diagram diagram;
    if (const auto slot = frameSlotOf(request.stage, request.pane, request.value, request.showTable)) {
        diagram.frame = frameInSlot(request.workspace.dataFiles, probe, *slot);
        const FrameAttributesType usual =
            slot->inSet ? defaultPlanFrame(slot->record) : defaultFrame(slot->group, slot->record);
        diagram.usualDigits = {usual.xDigits, usual.yDigits};
        diagram.allowedScales = scalesOf(*slot);
    }
    return diagram;
}

PaneContent diagramOrMessage(Diagram diagram) {
    if (std::none_of(diagram.plot.series.begin(), diagram.plot.series.end(), holdsNumber)) {
        // Values that cannot be stored do not come back with a reset.
        std::string reasons;
        for (const std::string& note : diagram.notes) {
            reasons += (reasons.empty() ? "" : "\n") + note;
        }
        return PaneMessage{reasons.empty() ? kNoDataText : reasons};
    }
    return diagram;
}

std::vector<double> plotValues(const SArray& column, double factor) {
    const double scale = column.GetScale();
    const auto units = column.view();
    std::vector<double> values(units.size());
    std::transform(units.begin(), units.end(), values.begin(), [scale, factor](std::int32_t unit) {
        return unit == std::numeric_limits<std::int32_t>::min() ? std::numeric_limits<double>::quiet_NaN()
                                                                : unit * scale * factor;
    });
    return values;
}

std::vector<double> plotColumn(const SMultiArray& table, int column, double factor) {
    return column < table.GetSize() ? plotValues(table.GetAt(column), factor) : std::vector<double>{};
}

PlotSeries recordLine(std::vector<double> y, SeriesX x, int index, const std::string& legend) {
    PlotSeries series;
    series.x = std::move(x);
    series.y = std::move(y);
    if (series.y.size() > kLongRecord) {
        series.blocks = ValueBlocks(series.y);
    }
    series.attributes.colour = seriesColour(index);
    series.attributes.legendText = legend;
    return series;
}

PlotSeries curve(std::vector<double> y, SeriesX x, int index, const std::string& legend) {
    PlotSeries series = recordLine(std::move(y), std::move(x), index, legend);
    series.attributes.penStyle = index % kPenStyles;
    series.attributes.penWidth = 1 + index / kPenStyles;
    return series;
}

void beginXAtZero(FrameAttributesType& frame) {
    if (frame.xMinMode == 0) {
        frame.xMinMode = 1;
        frame.xMin = 0.0;
    }
}

void beginYAtZero(FrameAttributesType& frame) {
    if (frame.yMinMode == 0) {
        frame.yMinMode = 1;
        frame.yMin = 0.0;
    }
}

void nameFrequencyUnit(FrameAttributesType& frame, std::uint32_t unit) {
    const auto isOwn = [&frame](const char* text) { return frame.xTitle == text; };
    if (unit < kFrequencyUnitTitles.size() &&
        (isOwn(kFrequencyTitle) || std::any_of(kFrequencyUnitTitles.begin(), kFrequencyUnitTitles.end(), isOwn))) {
        frame.xTitle = kFrequencyUnitTitles[unit];
    }
}

}  // namespace vorlan
