#include "plot/FrameComposer.h"

#include <algorithm>
#include <cmath>

#include "model/Index.h"

namespace vorlan {

namespace {

constexpr int kGap = 4;  // between pane edge, titles and labels
constexpr int kSmallestWidth = 60;
constexpr int kSmallestHeight = 40;
constexpr int kLongestStroke = 200;
constexpr int kMostTicks = 100;
constexpr int kSmallestDecade = 4;  // pixels
constexpr std::size_t kMostTitleLines = 3;

}  // namespace

FrameComposer::FrameComposer(const Diagram& diagram, const TextMeasure& measure, double lengthScale, const Box& pane,
                             const DataExtent& extent, const FrameWishes& wishes)
    : diagram_(diagram),
      frame_(diagram.frame),
      measure_(measure),
      scale_(lengthScale),
      pane_(pane),
      extent_(extent),
      wishes_(wishes) {
    out_.geometry.scaleType = SPlotFrame::effectiveScale(diagram);
    logX_ = out_.geometry.logX();
    logY_ = out_.geometry.logY();
}

int FrameComposer::scaled(int pixels) const {
    return static_cast<int>(std::lround(pixels * scale_));
}

int FrameComposer::gap() const {
    return scaled(kGap);
}

int FrameComposer::outwardMark() const {
    return std::max(x_.markLength, 0);
}

FrameLayout FrameComposer::compose() {
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

int FrameComposer::strokeLength(int stored) const {
    const int length = scaled(std::clamp(stored, 0, kLongestStroke));
    return frame_.tickOrientation == 0 ? -length : length;
}

void FrameComposer::prepareAxes() {
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
            const std::vector<std::string> parts = wrapped(note, frame_.labelFont, width, measure_, kMostTitleLines);
            lines->insert(lines->end(), parts.begin(), parts.end());
        }
    }
}

void FrameComposer::chooseLimits() {
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

int FrameComposer::endLabelWidth(const SAxis& axis, const AxisLimits& limits, bool logarithmic) const {
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

int FrameComposer::linesHeight(const std::vector<std::string>& lines, const FontDescription& font) const {
    return asInt(lines.size()) * measure_.height(font);
}

bool FrameComposer::placeVertically() {
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

bool FrameComposer::fit(SAxis& axis, AxisLimits limits, bool automatic, int length, int labelSize) {
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

void FrameComposer::chooseDigits(SAxis& axis, bool logarithmic, int stepMode, int stored, int usual) const {
    axis.decimalDigits = stored;
    if (!logarithmic && stepMode == 0 && stored == usual) {
        axis.decimalDigits = labelDigits({axis.minimum, axis.maximum, axis.markStep, axis.markCount}, stored);
    }
}

bool FrameComposer::fitY() {
    const bool fits = fit(y_, yLimits_, yAutomatic_, out_.geometry.height, labelHeight_);
    chooseDigits(y_, logY_, frame_.yStepMode, frame_.yDigits, diagram_.usualDigits.y);
    return fits;
}

bool FrameComposer::placeHorizontally() {
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

bool FrameComposer::fitX() {
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

void FrameComposer::finishAxes() {
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

SAxis FrameComposer::opposite(const SAxis& axis, int dx, int dy, AxisSide side) {
    SAxis other = axis;
    other.side = static_cast<std::int32_t>(side);
    other.originX += dx;
    other.originY += dy;
    // Outside lies on the other side there.
    other.tickLength = -axis.tickLength;
    other.markLength = -axis.markLength;
    return other;
}

void FrameComposer::addStrokes(const SAxis& axis, bool logarithmic) {
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

void FrameComposer::collectShapes() {
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

int FrameComposer::centredLeft(int width) const {
    const CScreenUtils& g = out_.geometry;
    const int wanted = g.originX + (g.width - width) / 2;
    return std::max(std::min(wanted, pane_.right - gap() - width), pane_.left + gap());
}

void FrameComposer::addCentred(const std::vector<std::string>& lines, const FontDescription& font, int top) {
    const int height = measure_.height(font);
    for (const std::string& line : lines) {
        const int width = measure_.width(line, font);
        const int left = centredLeft(width);
        out_.texts.push_back({line, {left, top, left + width, top + height}, font});
        top += height;
    }
}

void FrameComposer::addTitles() {
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
        out_.texts.push_back({line, {left, bottom - length, left + measure_.height(font), bottom}, font, 1.0, true});
        left += measure_.height(font);
    }
}

void FrameComposer::placeLegendAtPlotArea() {
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

}  // namespace vorlan
