#include "plot/SAxis.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "model/Archive.h"
#include "model/FrameAttributes.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr double kExponentShare = 0.7;
constexpr int kMostDigits = 12;

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

std::vector<Line> SAxis::logarithmicTicks() const {
    std::vector<Line> ticks;
    for (int i = 0; i < markCount; ++i) {
        for (int k = 1; k <= 9; ++k) {
            ticks.push_back(strokeAt(i * pixelsPerMark + decadeOffset(k, pixelsPerMark), tickLength));
        }
    }
    return ticks;
}

std::vector<Line> SAxis::marks() const {
    std::vector<Line> lines;
    for (int i = 0; i <= markCount; ++i) {
        lines.push_back(strokeAt(i * pixelsPerMark, markLength));
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
    // Zero by accumulated steps is off by rounding errors, which must not show as a sign.
    const double shown = std::fabs(value) < std::fabs(markStep) * 1e-9 ? 0.0 : value;
    return formatted("%.*f", std::clamp(decimalDigits, 0, kMostDigits), shown);
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
    const int first = exponentOf(minimum);
    int widest = 0;
    LabelRow row;
    for (int i = 0; i <= markCount; ++i) {
        const std::string exponent = formatted("%d", first + i);
        const int exponentWidth = measure.width(exponent, labelFont, kExponentShare);
        const Box box = labelBox(i * pixelsPerMark, tenWidth + exponentWidth, height);
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
    for (int i = 1; i < markCount && gridOn(gridMode, GridMode::Marks); ++i) {
        lines.push_back(gridLineAt(i * pixelsPerMark));
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
    for (int i = 0; i < markCount && gridOn(gridMode, GridMode::Ticks); ++i) {
        for (int k = 2; k <= 9; ++k) {
            lines.push_back(gridLineAt(i * pixelsPerMark + decadeOffset(k, pixelsPerMark)));
        }
    }
    addGridOnMarks(lines);
    return lines;
}

}  // namespace vorlan
