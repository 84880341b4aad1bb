#include "plot/EdgeNotes.h"

#include <algorithm>
#include <cmath>

#include "model/Text.h"
#include "plot/DataExtent.h"
#include "plot/SPlotFrame.h"

namespace vorlan {

namespace {

constexpr double kStepTolerance = 1e-6;

// One axis of a drawn diagram.
struct DrawnAxis {
    PixelScale pixels;
    int length;
    bool lowerFree;
    bool upperFree;
    double step;
    bool logarithmic;
    int digits;

    double beyond(double value, int direction) const {
        if (logarithmic) {
            const double decade = std::log10(value);
            return std::pow(10.0, direction > 0 ? std::floor(decade) + 1.0 : std::ceil(decade) - 1.0);
        }
        const double steps = value / std::fabs(step);
        return (direction > 0 ? std::floor(steps) + 1.0 : std::ceil(steps) - 1.0) * std::fabs(step);
    }
    std::string text(double value) const {
        if (logarithmic) {
            return formatted("%.3g", value);
        }
        // One digit more than the labels have, where it tells something.
        const std::string finer = numberText(value, digits + 1);
        return finer.back() == '0' ? numberText(value, digits) : finer;
    }
};

// The series that pass one end of an axis, and how far they reach.
class PassedEnd {
  public:
    void add(const std::string& name, double value, bool upward) {
        if (names_.empty() && !passed_) {
            reach_ = value;
        }
        passed_ = true;
        upward_ = upward;
        reach_ = upward ? std::max(reach_, value) : std::min(reach_, value);
        if (!name.empty() && std::find(names_.begin(), names_.end(), name) == names_.end()) {
            names_.push_back(name);
        }
    }
    bool passed() const { return passed_; }
    bool upward() const { return upward_; }
    double reach() const { return reach_; }
    std::string text(const std::string& arrow, const DrawnAxis& axis) const {
        std::string all = arrow;
        for (const std::string& name : names_) {
            all += (all == arrow ? " " : ", ") + name;
        }
        return all + (names_.empty() ? " data" : "") + (upward_ ? ": up to " : ": down to ") + axis.text(reach_);
    }

  private:
    std::vector<std::string> names_;
    bool passed_ = false;
    bool upward_ = true;
    double reach_ = 0.0;
};

struct PassedEnds {
    PassedEnd start;  // lower or left end
    PassedEnd end;

    void add(const DrawnAxis& axis, const DataInterval& data, const std::string& name) {
        const int low = axis.pixels.offset(data.lowest);
        const int high = axis.pixels.offset(data.highest);
        const bool forward = low <= high;
        const int first = std::min(low, high);
        const int last = std::max(low, high);
        if (last > axis.length && (axis.upperFree || first > axis.length)) {
            end.add(name, forward ? data.highest : data.lowest, forward);
        }
        if (first < 0 && (axis.lowerFree || last < 0)) {
            start.add(name, forward ? data.lowest : data.highest, !forward);
        }
    }
};

void widen(const PassedEnd& passed, const DrawnAxis& axis, std::optional<double>& into) {
    if (passed.passed()) {
        into = axis.beyond(passed.reach(), passed.upward() ? 1 : -1);
    }
}

}  // namespace

EdgeNotes edgeNotes(const Diagram& diagram, const CScreenUtils& g, int xDigits, int yDigits) {
    const AxisRule xRule = xAxisRule(diagram);
    const AxisRule yRule = yAxisRule(diagram.frame);
    // An axis of whole steps may end before the limit that it was given.
    const auto endsEarly = [](double drawn, double limit, double step) {
        return std::fabs(drawn - limit) > std::fabs(step) * kStepTolerance;
    };
    const bool xEnds = !g.logX() && endsEarly(g.xValue(g.originX + g.width), g.xMax, g.xStep);
    const bool yEnds = !g.logY() && endsEarly(g.yValue(g.originY - g.height), g.yMax, g.yStep);
    const DrawnAxis x{g.xPixels(), g.width, xRule.lowerFromData, xRule.upperFromData || xEnds, g.xStep,
                      g.logX(),    xDigits};
    const DrawnAxis y{g.yPixels(), g.height, yRule.lowerFromData, yRule.upperFromData || yEnds, g.yStep,
                      g.logY(),    yDigits};
    PassedEnds onX;
    PassedEnds onY;
    std::string absent;
    std::string flat;
    const auto addTo = [](std::string& names, const std::string& name) { names += (names.empty() ? "" : ", ") + name; };
    for (const PlotSeries& series : diagram.plot.series) {
        const std::string& name = series.attributes.legendText;
        if (const std::optional<DataExtent> extent = seriesExtent(series, g.logX(), g.logY())) {
            onX.add(x, extent->x, name);
            onY.add(y, extent->y, name);
            if (series.attributes.style == SeriesStyle::Bars && !name.empty() &&
                y.pixels.offset(extent->y.highest) == 0) {
                addTo(flat, name);
            }
        } else if (!name.empty()) {
            addTo(absent, name);
        }
    }
    EdgeNotes notes;
    if (!absent.empty()) {
        notes.below.push_back("\u25bc " + absent + (g.logY() ? ": no value above 0" : ": no value to draw"));
    }
    if (!flat.empty()) {
        notes.below.push_back("\u25bc " + flat + ": no bar above " + numberText(g.yMin, yDigits));
    }
    const auto note = [](const PassedEnd& passed, const char* arrow, const DrawnAxis& axis,
                         std::vector<std::string>& into) {
        if (passed.passed()) {
            into.push_back(passed.text(arrow, axis));
        }
    };
    note(onY.end, "\u25b2", y, notes.above);
    note(onX.end, "\u25ba", x, notes.above);
    note(onY.start, "\u25bc", y, notes.below);
    note(onX.start, "\u25c4", x, notes.below);
    widen(onX.start, x, notes.wider.xMin);
    widen(onX.end, x, notes.wider.xMax);
    widen(onY.start, y, notes.wider.yMin);
    widen(onY.end, y, notes.wider.yMax);
    return notes;
}

}  // namespace vorlan
