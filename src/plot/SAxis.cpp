#include "plot/SAxis.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "model/Archive.h"
#include "model/FrameAttributes.h"
#include "model/PixelScale.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr double kExponentShare = 0.7;
constexpr int kMostDigits = 12;
constexpr double kEndTolerance = 1e-9;  // decades

int decadeOffset(int k, int pixelsPerDecade) {
    return static_cast<int>(std::log10(static_cast<double>(k)) * pixelsPerDecade);
}

int exponentOf(double decade) {
    return static_cast<int>(std::lround(std::log10(decade)));
}

bool gridOn(std::int32_t mode, GridMode part) {
    return mode == static_cast<std::int32_t>(part) || mode == static_cast<std::int32_t>(GridMode::Both);
}

// Labels in the order of the axis; one that would cover the last one kept is left out.
class LabelRow {
  public:
    bool hasRoom(const Box& box) {
        if (!empty_ && box.overlaps(last_)) {
            return false;
        }
        last_ = box;
        empty_ = false;
        return true;
    }

  private:
    Box last_;
    bool empty_ = true;
};

}  // namespace

void SAxis::Serialize(Archive& archive) {
    for (std::int32_t* v : {&markCount, &pixelsPerMark, &side, &spare, &originX, &originY, &length}) {
        archive.value(*v);
    }
    archive.value(minimum);
    archive.value(maximum);
    archive.value(title);
    archive.raw(titleFont.bytes().data(), FontDescription::kSize);
    archive.value(tickLength);
    archive.value(markLength);
    archive.value(ticksPerMark);
    archive.value(markStep);
    archive.value(decimalDigits);
    archive.value(labelOffset);
    archive.value(secondSpare);
    archive.raw(labelFont.bytes().data(), FontDescription::kSize);
    for (std::int32_t* v : {&gridMode, &gridLength, &gridPenWidth, &gridPenStyle, &gridColour}) {
        archive.value(*v);
    }
}

bool SAxis::horizontal() const {
    return side == static_cast<std::int32_t>(AxisSide::Bottom) || side == static_cast<std::int32_t>(AxisSide::Top);
}

bool SAxis::carriesLabels() const {
    return side == static_cast<std::int32_t>(AxisSide::Bottom) || side == static_cast<std::int32_t>(AxisSide::Left);
}

void SAxis::recomputeMarks() {
    markCount = std::max(1, static_cast<int>(std::fabs(maximum - minimum) / std::fabs(markStep)));
    pixelsPerMark = length / markCount;
}

Line SAxis::axisLine() const {
    const Spot end = horizontal() ? Spot{originX + length, originY} : Spot{originX, originY - length};
    return {{originX, originY}, end};
}

Line SAxis::strokeAt(int offset, int strokeLength) const {
    if (horizontal()) {
        return {{originX + offset, originY}, {originX + offset, originY + strokeLength}};
    }
    return {{originX, originY - offset}, {originX - strokeLength, originY - offset}};
}

Line SAxis::gridLineAt(int offset) const {
    if (horizontal()) {
        return {{originX + offset, originY}, {originX + offset, originY - gridLength}};
    }
    return {{originX, originY - offset}, {originX + gridLength, originY - offset}};
}

int SAxis::tickSpacing() const {
    return length / (markCount * (std::max(ticksPerMark, 0) + 1));
}

std::vector<Line> SAxis::linearTicks() const {
    std::vector<Line> ticks;
    const int spacing = tickSpacing();
    for (int i = 0; i < markCount && spacing > 0; ++i) {
        for (int j = 0; j <= ticksPerMark; ++j) {
            ticks.push_back(strokeAt(i * pixelsPerMark + j * spacing, tickLength));
        }
    }
    return ticks;
}

std::vector<SAxis::DecadeStep> SAxis::decadeSteps(int k) const {
    std::vector<DecadeStep> steps;
    if (decadeScale == 0.0) {
        const int first = exponentOf(minimum);
        for (int i = 0; i < markCount; ++i) {
            steps.push_back({first + i, i * pixelsPerMark + decadeOffset(k, pixelsPerMark)});
        }
        return steps;
    }
    const PixelScale pixels(minimum, decadeScale, true);
    const double lowest = std::log10(std::min(minimum, maximum));
    const double highest = std::log10(std::max(minimum, maximum));
    const double above = std::log10(static_cast<double>(k));
    const auto last = static_cast<int>(std::floor(highest - above + kEndTolerance));
    for (auto decade = static_cast<int>(std::ceil(lowest - above - kEndTolerance)); decade <= last; ++decade) {
        steps.push_back({decade, pixels.offset(k * std::pow(10.0, decade))});
    }
    return steps;
}

std::vector<SAxis::DecadeStep> SAxis::decadeMarks() const {
    std::vector<DecadeStep> steps = decadeSteps(1);
    if (decadeScale == 0.0) {
        steps.push_back({exponentOf(minimum) + markCount, markCount * pixelsPerMark});
    }
    return steps;
}

std::vector<int> SAxis::decadeOffsets(int firstDigit) const {
    std::vector<int> offsets;
    for (int k = firstDigit; k <= 9; ++k) {
        for (const DecadeStep& step : decadeSteps(k)) {
            offsets.push_back(step.offset);
        }
    }
    std::sort(offsets.begin(), offsets.end());
    return offsets;
}

std::vector<int> SAxis::markOffsets() const {
    std::vector<int> offsets;
    if (decadeScale != 0.0) {
        for (const DecadeStep& step : decadeMarks()) {
            offsets.push_back(step.offset);
        }
        return offsets;
    }
    for (int i = 0; i <= markCount; ++i) {
        offsets.push_back(i * pixelsPerMark);
    }
    return offsets;
}

std::vector<Line> SAxis::logarithmicTicks() const {
    std::vector<Line> ticks;
    for (const int offset : decadeOffsets(1)) {
        ticks.push_back(strokeAt(offset, tickLength));
    }
    return ticks;
}

std::vector<Line> SAxis::marks() const {
    std::vector<Line> lines;
    for (const int offset : markOffsets()) {
        lines.push_back(strokeAt(offset, markLength));
    }
    return lines;
}

Box SAxis::labelBox(int offset, int width, int height) const {
    const int gap = labelOffset + std::max(markLength, 0);
    const int left = horizontal() ? originX + offset - width / 2 : originX - gap - width;
    const int top = horizontal() ? originY + gap : originY - offset - height / 2;
    return {left, top, left + width, top + height};
}

int SAxis::room(int labelWidth, int labelHeight) const {
    return labelOffset + std::max(markLength, 0) + (horizontal() ? labelHeight : labelWidth);
}

std::string SAxis::linearLabel(double value) const {
    return numberText(value, std::clamp(decimalDigits, 0, kMostDigits));
}

AxisLabels SAxis::linearLabels(const TextMeasure& measure) const {
    AxisLabels labels;
    if (!carriesLabels() || markLength == 0) {
        return labels;
    }
    const int height = measure.height(labelFont);
    int widest = 0;
    LabelRow row;
    double value = minimum;
    for (int i = 0; i <= markCount; ++i, value += markStep) {
        PlacedText label{linearLabel(value), {}, labelFont};
        const int width = measure.width(label.text, labelFont);
        label.box = labelBox(i * pixelsPerMark, width, height);
        if (row.hasRoom(label.box)) {
            widest = std::max(widest, width);
            labels.texts.push_back(label);
        }
    }
    labels.room = room(widest, height);
    return labels;
}

AxisLabels SAxis::logarithmicLabels(const TextMeasure& measure) const {
    AxisLabels labels;
    if (!carriesLabels() || markLength == 0) {
        return labels;
    }
    const int height = measure.height(labelFont);
    const int raise = height / 2;
    const int tenWidth = measure.width("10", labelFont);
    const int exponentHeight = measure.height(labelFont, kExponentShare);
    int widest = 0;
    LabelRow row;
    for (const DecadeStep& step : decadeMarks()) {
        const std::string exponent = formatted("%d", step.decade);
        const int exponentWidth = measure.width(exponent, labelFont, kExponentShare);
        const Box box = labelBox(step.offset, tenWidth + exponentWidth, height);
        if (!row.hasRoom(box)) {
            continue;
        }
        widest = std::max(widest, box.width());
        const Box tenBox{box.left, box.top, box.left + tenWidth, box.bottom};
        labels.texts.push_back({"10", tenBox, labelFont});
        const int exponentTop = box.top + measure.ascent(labelFont) - raise - measure.ascent(labelFont, kExponentShare);
        const Box exponentBox{tenBox.right, exponentTop, box.right, exponentTop + exponentHeight};
        labels.texts.push_back({exponent, exponentBox, labelFont, kExponentShare});
    }
    labels.room = room(widest, height);
    return labels;
}

void SAxis::addGridOnMarks(std::vector<Line>& lines) const {
    if (!gridOn(gridMode, GridMode::Marks)) {
        return;
    }
    for (const int offset : markOffsets()) {
        if (offset > 0 && offset < length) {
            lines.push_back(gridLineAt(offset));
        }
    }
}

std::vector<Line> SAxis::linearGrid() const {
    std::vector<Line> lines;
    if (!carriesLabels()) {
        return lines;
    }
    const int spacing = gridOn(gridMode, GridMode::Ticks) ? tickSpacing() : 0;
    for (int i = 0; i < markCount && spacing > 0; ++i) {
        for (int j = 1; j <= ticksPerMark; ++j) {
            lines.push_back(gridLineAt(i * pixelsPerMark + j * spacing));
        }
    }
    addGridOnMarks(lines);
    return lines;
}

std::vector<Line> SAxis::logarithmicGrid() const {
    std::vector<Line> lines;
    if (!carriesLabels()) {
        return lines;
    }
    if (gridOn(gridMode, GridMode::Ticks)) {
        for (const int offset : decadeOffsets(2)) {
            lines.push_back(gridLineAt(offset));
        }
    }
    addGridOnMarks(lines);
    return lines;
}

}  // namespace vorlan
