#include "plot/SPlotFrame.h"

#include <algorithm>

#include "plot/DataExtent.h"
#include "plot/EdgeNotes.h"
#include "plot/FrameComposer.h"
#include "plot/LegendRoom.h"
#include "plot/PlanExtent.h"

namespace vorlan {

namespace {

constexpr int kMostPlanLayouts = 8;
constexpr double kLeastBesideLegend = 0.6;  // share of the width that a legend beside the plot area leaves to it

LegendPlace firstLegendPlace(const Diagram& diagram) {
    if (!hasLegend(diagram)) {
        return LegendPlace::Nowhere;
    }
    const bool below = diagram.frame.legendPosition == static_cast<std::int32_t>(LegendPosition::Bottom);
    return below ? LegendPlace::Below : LegendPlace::Inside;
}

// The layout whose legend stands in the plot area, or one whose legend stands aside where it would cover data.
template <class Compose>
FrameLayout withFreeLegend(const Diagram& diagram, const TextMeasure& measure, double scale, FrameLayout inside,
                           FrameWishes wishes, Compose compose) {
    if (!inside.legend.empty() && !coversData(inside.legend.box, diagram, inside.geometry, measure, scale)) {
        return inside;
    }
    wishes.legend = LegendPlace::Beside;
    FrameLayout beside = compose(wishes);
    if (beside.state == FrameLayout::State::Drawn && beside.legend.complete() &&
        beside.geometry.width >= inside.geometry.width * kLeastBesideLegend) {
        return beside;
    }
    wishes.legend = LegendPlace::Below;
    FrameLayout below = compose(wishes);
    if (below.state == FrameLayout::State::Drawn && !below.legend.empty()) {
        return below;
    }
    inside.legend = {};
    return inside;
}

}  // namespace

AxisRule xAxisRule(const Diagram& diagram) {
    const FrameAttributesType& frame = diagram.frame;
    AxisRule rule;
    rule.lowerFromData = frame.xMinMode == 0;
    // The axis-limit switch of a time series frees both ends of its time axis.
    rule.upperFromData = frame.xMaxMode == 0 || (diagram.duration && frame.xMinMode == 0);
    rule.lower = frame.xMin;
    rule.upper = frame.xMax;
    rule.stepGiven = frame.xStepMode != 0;
    rule.step = frame.xStep;
    return rule;
}

AxisRule yAxisRule(const FrameAttributesType& frame) {
    AxisRule rule;
    rule.lowerFromData = frame.yMinMode == 0;
    rule.upperFromData = frame.yMaxMode == 0;
    rule.lower = frame.yMin;
    rule.upper = frame.yMax;
    rule.stepGiven = frame.yStepMode != 0;
    rule.step = frame.yStep;
    return rule;
}

SPlotFrame::SPlotFrame(const Diagram& diagram, const TextMeasure& measure, double lengthScale)
    : diagram_(diagram), measure_(measure), scale_(lengthScale) {}

FrameLayout SPlotFrame::layout(const Box& pane) const {
    const ScaleType scale = effectiveScale(diagram_);
    const bool logX = scale == ScaleType::Logarithmic || scale == ScaleType::LogXLinearY;
    const bool logY = scale == ScaleType::Logarithmic || scale == ScaleType::LinearXLogY;
    const std::optional<DataExtent> points = dataExtent(diagram_.plot, logX, logY);
    if (!points) {
        return {};
    }
    const auto compose = [&](const FrameWishes& wishes) {
        const auto around = [&](const DataExtent& extent) {
            return FrameComposer(diagram_, measure_, scale_, pane, extent, wishes).compose();
        };
        if (!diagram_.planRoom) {
            return around(*points);
        }
        PlanExtent plan(diagram_, measure_, scale_, *points);
        FrameLayout layout = around(plan.extent());
        for (int i = 0; i < kMostPlanLayouts && layout.state == FrameLayout::State::Drawn && plan.grow(layout.geometry);
             ++i) {
            layout = around(plan.extent());
        }
        return layout;
    };
    FrameWishes wishes;
    wishes.below = diagram_.notes;
    wishes.legend = firstLegendPlace(diagram_);
    FrameLayout layout = compose(wishes);
    if (layout.state != FrameLayout::State::Drawn) {
        return layout;
    }
    EdgeNotes notes = edgeNotes(diagram_, layout.geometry, layout.axes[0].decimalDigits, layout.axes[1].decimalDigits);
    if (!notes.empty()) {
        wishes.above = notes.above;
        wishes.below.insert(wishes.below.begin(), notes.below.begin(), notes.below.end());
        layout = compose(wishes);
    }
    if (layout.state == FrameLayout::State::Drawn && wishes.legend == LegendPlace::Inside) {
        layout = withFreeLegend(diagram_, measure_, scale_, std::move(layout), wishes, compose);
    }
    layout.geometry.wider = notes.wider;
    return layout;
}

ScaleType SPlotFrame::effectiveScale(const Diagram& diagram) {
    const auto needsLinear = [](const PlotSeries& series) {
        return series.attributes.style == SeriesStyle::Bars || series.attributes.style == SeriesStyle::Arrows;
    };
    if (diagram.allowedScales.empty() ||
        std::any_of(diagram.plot.series.begin(), diagram.plot.series.end(), needsLinear)) {
        return ScaleType::Linear;
    }
    for (const ScaleType scale : diagram.allowedScales) {
        if (static_cast<std::int32_t>(scale) == diagram.frame.scaleType) {
            return scale;
        }
    }
    return diagram.allowedScales.front();
}

}  // namespace vorlan
