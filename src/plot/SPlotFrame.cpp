#include "plot/SPlotFrame.h"

#include <algorithm>
#include <cmath>

#include "model/Index.h"
#include "model/Text.h"
#include "plot/DataExtent.h"
#include "plot/EdgeNotes.h"
#include "plot/LegendRoom.h"
#include "plot/PlanExtent.h"

namespace vorlan {

namespace {

constexpr int kGap = 4;  // between pane edge, titles and labels
constexpr int kSmallestWidth = 60;
constexpr int kSmallestHeight = 40;
constexpr int kLongestStroke = 200;
constexpr int kMostTicks = 100;
constexpr int kSmallestDecade = 4;  // pixels
constexpr int kMostPlanLayouts = 8;
constexpr std::size_t kMostTitleLines = 3;
constexpr double kLeastBesideLegend = 0.6;  // share of the width that a legend beside the plot area leaves to it

enum class LegendPlace { Inside, Beside, Below, Nowhere };

// What a layout is asked for besides the diagram itself.
struct Wishes {
    LegendPlace legend = LegendPlace::Inside;
    std::vector<std::string> above;  // lines between title and plot area
    std::vector<std::string> below;  // lines between labels and axis title
};

// One layout in the making.
class Composer {
  public:
    Composer(const Diagram& diagram, const TextMeasure& measure, double scale, const Box& pane,
             const DataExtent& extent, const Wishes& wishes)
        : diagram_(diagram),
          frame_(diagram.frame),
          measure_(measure),
          scale_(scale),
          pane_(pane),
          extent_(extent),
          wishes_(wishes) {
        out_.geometry.scaleType = SPlotFrame::effectiveScale(diagram);
        logX_ = out_.geometry.logX();
        logY_ = out_.geometry.logY();
    }

    FrameLayout compose() {
        out_.state = FrameLayout::State::TooSmall;
        prepareAxes();
        chooseLimits();
        if (!placeVertically() || !fitY() || !placeHorizontally() || !fitX()) {
            return std::move(out_);
        }
        finishAxes();
        collectShapes();
        addTitles();
        placeLegendAtPlotArea();
        out_.state = FrameLayout::State::Drawn;
        return std::move(out_);
    }

  private:
    int scaled(int pixels) const { return static_cast<int>(std::lround(pixels * scale_)); }
    int gap() const { return scaled(kGap); }
    int strokeLength(int stored) const {
        const int length = scaled(std::clamp(stored, 0, kLongestStroke));
        return frame_.tickOrientation == 0 ? -length : length;
    }
    bool fullFrame() const { return frame_.frameStyle == 1; }
    int outwardMark() const { return std::max(x_.markLength, 0); }

    void prepareAxes() {
        for (SAxis* axis : {&x_, &y_}) {
            axis->tickLength = strokeLength(frame_.tickSize);
            axis->markLength = strokeLength(frame_.markSize);
            axis->ticksPerMark = std::clamp(frame_.ticksPerMark, 0, kMostTicks);
            axis->labelOffset = scaled(std::clamp(frame_.labelOffset, 0, kLongestStroke));
            axis->labelFont = frame_.labelFont;
            axis->titleFont = frame_.axisTitleFont;
            axis->gridMode = frame_.gridMode;
            axis->gridPenWidth = frame_.gridPenWidth;
            axis->gridPenStyle = frame_.gridLineStyle;
            axis->gridColour = frame_.gridColour;
        }
        x_.side = static_cast<std::int32_t>(AxisSide::Bottom);
        x_.decimalDigits = frame_.xDigits;
        x_.title = frame_.xTitle;
        y_.side = static_cast<std::int32_t>(AxisSide::Left);
        y_.decimalDigits = frame_.yDigits;
        y_.title = frame_.yTitle;
        labelHeight_ = x_.markLength == 0 ? 0 : measure_.height(frame_.labelFont);
        const int width = pane_.width() - 2 * gap();
        title_ = wrapped(frame_.plotTitle, frame_.plotTitleFont, width, measure_, kMostTitleLines);
        xTitle_ = wrapped(frame_.xTitle, frame_.axisTitleFont, width, measure_, kMostTitleLines);
        yTitle_ = wrapped(frame_.yTitle, frame_.axisTitleFont, pane_.height() - 2 * gap(), measure_, kMostTitleLines);
        for (const auto& [notes, lines] : {std::pair(&wishes_.above, &above_), std::pair(&wishes_.below, &below_)}) {
            for (const std::string& note : *notes) {
                const std::vector<std::string> parts =
                    wrapped(note, frame_.labelFont, width, measure_, kMostTitleLines);
                lines->insert(lines->end(), parts.begin(), parts.end());
            }
        }
    }

    void chooseLimits() {
        DataInterval times = extent_.x;
        if (diagram_.duration && frame_.xMinMode != 0) {
            times.highest = frame_.xMin + *diagram_.duration;
        }
        const AxisRule xRule = xAxisRule(diagram_);
        const AxisRule yRule = yAxisRule(frame_);
        if (logX_) {
            xLimits_ = logarithmicLimits(xRule, extent_.x, (pane_.width()) / scaled(kSmallestDecade));
            xAutomatic_ = false;
        } else {
            const LinearLimits chosen = linearLimits(xRule, times, kXManner);
            xLimits_ = chosen.limits;
            xAutomatic_ = chosen.automaticStep;
        }
        if (logY_) {
            yLimits_ = logarithmicLimits(yRule, extent_.y, (pane_.height() / 2) / scaled(kSmallestDecade));
            yAutomatic_ = false;
        } else {
            const LinearLimits chosen = linearLimits(yRule, extent_.y, kYManner);
            yLimits_ = chosen.limits;
            yAutomatic_ = chosen.automaticStep;
        }
    }

    // Size of the labels of an axis before its length is known: those of its two ends.
    int endLabelWidth(const SAxis& axis, const AxisLimits& limits, bool logarithmic) const {
        SAxis ends = axis;
        ends.side = static_cast<std::int32_t>(AxisSide::Bottom);
        ends.minimum = limits.lower;
        ends.markCount = 1;
        ends.markStep = limits.upper - limits.lower;
        ends.pixelsPerMark = pane_.width() + pane_.height();
        if (logarithmic) {
            ends.maximum = limits.upper;
            ends.markCount = limits.marks;
            ends.decadeScale = limits.wholeDecades ? 0.0 : limits.decadesPer(ends.pixelsPerMark);
        }
        int widest = 0;
        if (logarithmic) {
            const std::vector<PlacedText> texts = ends.logarithmicLabels(measure_).texts;
            for (std::size_t i = 0; i + 1 < texts.size(); i += 2) {
                widest = std::max(widest, texts[i + 1].box.right - texts[i].box.left);
            }
        } else {
            for (const PlacedText& text : ends.linearLabels(measure_).texts) {
                widest = std::max(widest, text.box.width());
            }
        }
        return widest;
    }

    int linesHeight(const std::vector<std::string>& lines, const FontDescription& font) const {
        return asInt(lines.size()) * measure_.height(font);
    }

    bool placeVertically() {
        int top = pane_.top + gap();
        if (!title_.empty()) {
            titleTop_ = top;
            top += linesHeight(title_, frame_.plotTitleFont) + gap();
        }
        aboveTop_ = top;
        top += linesHeight(above_, frame_.labelFont);
        top += std::max(labelHeight_ / 2, fullFrame() ? outwardMark() : 0);
        int bottom = pane_.bottom - gap();
        if (wishes_.legend == LegendPlace::Below) {
            legend_ = placeLegend(diagram_, LegendPosition::Bottom, pane_.width() - 2 * gap(), measure_, scale_);
            bottom -= legend_.box.height();
            legend_.move(0, bottom - legend_.box.top);
        } else if (wishes_.legend == LegendPlace::Beside) {
            legend_ = placeLegend(diagram_, LegendPosition::RightTop, pane_.width() / 2, measure_, scale_);
        }
        if (!xTitle_.empty()) {
            bottom -= linesHeight(xTitle_, frame_.axisTitleFont);
            xTitleTop_ = bottom;
            bottom -= gap();
        }
        bottom -= linesHeight(below_, frame_.labelFont);
        belowTop_ = bottom;
        bottom -= x_.labelOffset + outwardMark() + labelHeight_;
        out_.geometry.originY = bottom;
        out_.geometry.height = bottom - top;
        return out_.geometry.height >= scaled(kSmallestHeight);
    }

    // The axis cut to whole pixels per mark. False when there is no room for one label.
    bool fit(SAxis& axis, AxisLimits limits, bool automatic, int length, int labelSize) {
        const int room = labelSize > 0 ? length / labelSize : length;
        const bool tooFine = limits.marks > length;
        if (automatic || (tooFine && limits.wholeDecades)) {
            const int most = std::min(room, length);
            limits = withMarks(limits, fittedMarks(limits.marks, most, !axis.horizontal()));
        }
        axis.minimum = limits.lower;
        axis.maximum = limits.upper;
        axis.markStep = limits.step;
        axis.markCount = limits.marks;
        axis.pixelsPerMark = length / limits.marks;
        axis.length = axis.pixelsPerMark * limits.marks;
        if (!limits.wholeDecades) {
            axis.length = length;
            axis.pixelsPerMark = std::max(axis.pixelsPerMark, 1);
            axis.decadeScale = limits.decadesPer(length);
        }
        return room >= 1 && axis.pixelsPerMark >= 1;
    }

    // Digits that the user has chosen, or that go with his step, stay.
    void chooseDigits(SAxis& axis, bool logarithmic, int stepMode, int stored, int usual) const {
        axis.decimalDigits = stored;
        if (!logarithmic && stepMode == 0 && stored == usual) {
            axis.decimalDigits = labelDigits({axis.minimum, axis.maximum, axis.markStep, axis.markCount}, stored);
        }
    }

    bool fitY() {
        const bool fits = fit(y_, yLimits_, yAutomatic_, out_.geometry.height, labelHeight_);
        chooseDigits(y_, logY_, frame_.yStepMode, frame_.yDigits, diagram_.usualDigits.y);
        return fits;
    }

    bool placeHorizontally() {
        const int xLabel = endLabelWidth(x_, xLimits_, logX_);
        y_.originX = y_.originY = 0;
        const AxisLabels labels = logY_ ? y_.logarithmicLabels(measure_) : y_.linearLabels(measure_);
        int left = pane_.left + gap();
        if (!yTitle_.empty()) {
            yTitleLeft_ = left;
            left += linesHeight(yTitle_, frame_.axisTitleFont) + gap();
        }
        left = std::max(left + std::max(labels.room, outwardMark()), pane_.left + gap() + xLabel / 2);
        int right = pane_.right - std::max(xLabel - xLabel / 2 + 1, gap());
        right -= fullFrame() ? std::max(outwardMark() - xLabel / 2, 0) : 0;
        right -= wishes_.legend == LegendPlace::Beside ? legend_.box.width() : 0;
        out_.geometry.originX = left;
        out_.geometry.width = right - left;
        xLabelWidth_ = xLabel;
        return out_.geometry.width >= scaled(kSmallestWidth);
    }

    bool fitX() {
        for (;;) {
            const int measured = x_.decimalDigits;
            const bool fits = fit(x_, xLimits_, xAutomatic_, out_.geometry.width, xLabelWidth_);
            chooseDigits(x_, logX_, frame_.xStepMode, frame_.xDigits, diagram_.usualDigits.x);
            if (!fits || x_.decimalDigits <= measured) {
                return fits;
            }
            // A thinned step may need longer labels than there was room for.
            if (!placeHorizontally()) {
                return false;
            }
        }
    }

    void finishAxes() {
        CScreenUtils& g = out_.geometry;
        // Space that whole pixels per mark leave over goes to the sides of the plot area.
        g.originY -= (g.height - y_.length) / 2;
        g.width = x_.length;
        g.height = y_.length;
        g.xMin = x_.minimum;
        g.xMax = x_.maximum;
        g.yMin = y_.minimum;
        g.yMax = y_.maximum;
        g.xStep = x_.markStep;
        g.yStep = y_.markStep;
        g.xScale = logX_ ? x_.pixelsPerDecade() : x_.markStep / x_.pixelsPerMark;
        g.yScale = logY_ ? y_.pixelsPerDecade() : y_.markStep / y_.pixelsPerMark;
        x_.originX = y_.originX = g.originX;
        x_.originY = y_.originY = g.originY;
        x_.gridLength = g.height;
        y_.gridLength = g.width;
    }

    static SAxis opposite(const SAxis& axis, int dx, int dy, AxisSide side) {
        SAxis other = axis;
        other.side = static_cast<std::int32_t>(side);
        other.originX += dx;
        other.originY += dy;
        // Outside lies on the other side there.
        other.tickLength = -axis.tickLength;
        other.markLength = -axis.markLength;
        return other;
    }

    void addStrokes(const SAxis& axis, bool logarithmic) {
        const auto append = [this](const std::vector<Line>& lines) {
            out_.strokes.insert(out_.strokes.end(), lines.begin(), lines.end());
        };
        out_.strokes.push_back(axis.axisLine());
        if (axis.tickLength != 0) {
            append(logarithmic ? axis.logarithmicTicks() : axis.linearTicks());
        }
        if (axis.markLength != 0) {
            append(axis.marks());
        }
    }

    void collectShapes() {
        out_.axes = {x_, y_};
        if (fullFrame()) {
            out_.axes.push_back(opposite(x_, 0, -y_.length, AxisSide::Top));
            out_.axes.push_back(opposite(y_, x_.length, 0, AxisSide::Right));
        }
        for (const SAxis& axis : out_.axes) {
            const bool logarithmic = axis.horizontal() ? logX_ : logY_;
            addStrokes(axis, logarithmic);
            const AxisLabels labels = logarithmic ? axis.logarithmicLabels(measure_) : axis.linearLabels(measure_);
            out_.texts.insert(out_.texts.end(), labels.texts.begin(), labels.texts.end());
            const std::vector<Line> grid = logarithmic ? axis.logarithmicGrid() : axis.linearGrid();
            out_.grid.insert(out_.grid.end(), grid.begin(), grid.end());
        }
    }

    // Left edge of a text centred on the plot area, moved where the pane would cut it.
    int centredLeft(int width) const {
        const CScreenUtils& g = out_.geometry;
        const int wanted = g.originX + (g.width - width) / 2;
        return std::max(std::min(wanted, pane_.right - gap() - width), pane_.left + gap());
    }

    void addCentred(const std::vector<std::string>& lines, const FontDescription& font, int top) {
        const int height = measure_.height(font);
        for (const std::string& line : lines) {
            const int width = measure_.width(line, font);
            const int left = centredLeft(width);
            out_.texts.push_back({line, {left, top, left + width, top + height}, font});
            top += height;
        }
    }

    void addTitles() {
        addCentred(title_, frame_.plotTitleFont, titleTop_);
        addCentred(above_, frame_.labelFont, aboveTop_);
        addCentred(below_, frame_.labelFont, belowTop_);
        addCentred(xTitle_, frame_.axisTitleFont, xTitleTop_);
        const FontDescription& font = frame_.axisTitleFont;
        int left = yTitleLeft_;
        for (const std::string& line : yTitle_) {
            const int length = measure_.width(line, font);
            const int wanted = out_.geometry.originY - (out_.geometry.height - length) / 2;
            const int bottom = std::min(std::max(wanted, pane_.top + gap() + length), pane_.bottom - gap());
            out_.texts.push_back(
                {line, {left, bottom - length, left + measure_.height(font), bottom}, font, 1.0, true});
            left += measure_.height(font);
        }
    }

    void placeLegendAtPlotArea() {
        const CScreenUtils& g = out_.geometry;
        if (wishes_.legend == LegendPlace::Below) {
            legend_.move(centredLeft(legend_.box.width()) - legend_.box.left, 0);
        } else if (wishes_.legend == LegendPlace::Beside) {
            legend_.move(pane_.right - gap() - legend_.box.width(), g.originY - g.height);
        } else if (wishes_.legend == LegendPlace::Inside) {
            legend_ = placeLegend(diagram_, LegendPosition::RightTop, g.width - 2 * gap(), measure_, scale_);
            const int inset = gap() + std::max(-x_.markLength, 0) * (fullFrame() ? 1 : 0);
            legend_.move(g.originX + g.width - inset - legend_.box.width(), g.originY - g.height + inset);
            legend_.inPlotArea = true;
        }
        const Box plotArea{g.originX, g.originY - g.height, g.originX + g.width, g.originY};
        if (!legend_.empty() && (legend_.inPlotArea ? plotArea : pane_).encloses(legend_.box)) {
            out_.legend = legend_;
        }
    }

    const Diagram& diagram_;
    const FrameAttributesType& frame_;
    const TextMeasure& measure_;
    double scale_;
    Box pane_;
    const DataExtent& extent_;
    const Wishes& wishes_;
    FrameLayout out_;
    bool logX_ = false;
    bool logY_ = false;
    SAxis x_;
    SAxis y_;
    AxisLimits xLimits_;
    AxisLimits yLimits_;
    bool xAutomatic_ = true;
    bool yAutomatic_ = true;
    SLegend legend_;
    std::vector<std::string> title_;
    std::vector<std::string> xTitle_;
    std::vector<std::string> yTitle_;
    std::vector<std::string> above_;
    std::vector<std::string> below_;
    int aboveTop_ = 0;
    int belowTop_ = 0;
    int labelHeight_ = 0;
    int xLabelWidth_ = 0;
    int titleTop_ = 0;
    int xTitleTop_ = 0;
    int yTitleLeft_ = 0;
};

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
                           Wishes wishes, Compose compose) {
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
    const auto compose = [&](const Wishes& wishes) {
        const auto around = [&](const DataExtent& extent) {
            return Composer(diagram_, measure_, scale_, pane, extent, wishes).compose();
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
    Wishes wishes;
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
