#include "plot/AxisLimits.h"

#include <algorithm>
#include <cmath>

#include "plot/NiceNumbers.h"

namespace vorlan {

namespace {

// Sums of steps miss the range by rounding errors; an interval must not be lost to one of them.
constexpr double kIntervalTolerance = 1e-9;
constexpr double kLargestLimit = 1e300;
constexpr int kMostMarks = 1000000;
constexpr double kLabelTolerance = 0.02;
constexpr int kMostDigits = 9;
// A decade whose logarithm is off by a rounding error counts as whole.
constexpr double kDecadeTolerance = 1e-9;
// Ends that differ by less than their rounding errors count as equal.
constexpr double kSmallestRelativeRange = 1e-12;
constexpr double kSmallestRange = 1e-290;

double usable(double limit) {
    return std::isfinite(limit) ? std::clamp(limit, -kLargestLimit, kLargestLimit) : 0.0;
}

int countedMarks(const AxisLimits& limits) {
    const double n = std::fabs(limits.upper - limits.lower) / std::fabs(limits.step) * (1.0 + kIntervalTolerance);
    return n >= 1.0 ? static_cast<int>(std::min<double>(n, kMostMarks)) : 1;
}

double magnitude(const AxisLimits& limits) {
    return std::max(std::fabs(limits.lower), std::fabs(limits.upper));
}

// Free ends that meet or pass the other end are moved to where the axis has a length.
void partEnds(AxisLimits& limits, const AxisRule& rule, double distance) {
    const double range = limits.upper - limits.lower;
    const bool bothGiven = !rule.lowerFromData && !rule.upperFromData;
    const double smallest = std::max(magnitude(limits) * kSmallestRelativeRange, kSmallestRange);
    if (std::fabs(range) > smallest && (range > 0.0 || bothGiven)) {
        return;
    }
    // Equal data are widened as told, unless rounding would lose that.
    const bool equalData = rule.lowerFromData && rule.upperFromData;
    if (!equalData || distance <= smallest) {
        distance = std::max(distance, magnitude(limits) * 1e-3);
    }
    if (rule.lowerFromData) {
        limits.lower = limits.upper - distance;
    } else {
        limits.upper = limits.lower + distance;
    }
}

void roundFreeEnds(AxisLimits& limits, const AxisRule& rule) {
    if (rule.lowerFromData) {
        limits.lower = lowerLimit(limits.lower, limits.step);
    }
    if (rule.upperFromData) {
        limits.upper = upperLimit(limits.upper, limits.step);
    }
    if (limits.upper <= limits.lower && (rule.lowerFromData || rule.upperFromData)) {
        if (rule.upperFromData) {
            limits.upper = limits.lower + limits.step;
        } else {
            limits.lower = limits.upper - limits.step;
        }
    }
}

void finish(AxisLimits& limits) {
    limits.step = std::copysign(limits.step, limits.upper - limits.lower);
    limits.marks = countedMarks(limits);
}

}  // namespace

LinearLimits linearLimits(const AxisRule& rule, const DataInterval& data, const AxisManner& manner) {
    AxisLimits ends;
    ends.lower = usable(rule.lowerFromData ? data.lowest : rule.lower);
    ends.upper = usable(rule.upperFromData ? data.highest : rule.upper);
    if (rule.stepGiven && std::isfinite(rule.step) && rule.step > 0.0) {
        AxisLimits limits = ends;
        limits.step = rule.step;
        roundFreeEnds(limits, rule);
        const double range = std::fabs(limits.upper - limits.lower);
        if (range > 0.0 && rule.step <= range * (1.0 + kIntervalTolerance) && range / rule.step < kMostMarks) {
            finish(limits);
            return {limits, false};
        }
    }
    partEnds(ends, rule, manner.widening);
    const bool both = rule.lowerFromData && rule.upperFromData;
    const double divisor = both ? manner.divisorBothFromData : manner.divisorOtherwise;
    ends.step = niceStep(std::fabs(ends.upper - ends.lower) / divisor);
    roundFreeEnds(ends, rule);
    finish(ends);
    return {ends, true};
}

double AxisLimits::decadesPer(int length) const {
    return length / (std::log10(upper) - std::log10(lower));
}

AxisLimits logarithmicLimits(const AxisRule& rule, const DataInterval& data, int mostDecades) {
    const auto given = [](bool fromData, double limit) { return !fromData && limit > 0.0 && std::isfinite(limit); };
    const bool lowerGiven = given(rule.lowerFromData, rule.lower);
    const bool upperGiven = given(rule.upperFromData, rule.upper);
    double first = lowerGiven ? std::log10(rule.lower) : std::floor(std::log10(data.lowest));
    double last = upperGiven ? std::log10(rule.upper) : std::ceil(std::log10(data.highest));
    if (!upperGiven && last <= first) {
        last = std::floor(first) + 1.0;
    }
    if (!lowerGiven && last <= first) {
        first = std::ceil(last) - 1.0;
    }
    if (!lowerGiven) {
        first = std::max(first, last - std::max(mostDecades, 1));
    }
    if (first == last) {
        last += 1.0;
    }
    const auto isWhole = [](double decade) { return std::fabs(decade - std::round(decade)) < kDecadeTolerance; };
    AxisLimits limits;
    limits.wholeDecades = isWhole(first) && isWhole(last) && first < last;
    if (limits.wholeDecades) {
        first = std::round(first);
        last = std::round(last);
        limits.lower = std::pow(10.0, first);
        limits.upper = std::pow(10.0, last);
        limits.marks = static_cast<int>(last - first);
    } else {
        limits.lower = lowerGiven ? rule.lower : std::pow(10.0, first);
        limits.upper = upperGiven && rule.upper != rule.lower ? rule.upper : std::pow(10.0, last);
        limits.marks = std::max(static_cast<int>(std::fabs(last - first)), 1);
    }
    limits.step = 1.0;
    return limits;
}

int fittedMarks(int n, int room, bool vertical) {
    while (room < n && n > 1) {
        n /= 2;
    }
    return vertical && n == 3 ? 2 : std::max(n, 1);
}

int labelDigits(const AxisLimits& limits, int least) {
    const double tolerance = std::fabs(limits.step) * kLabelTolerance;
    for (int digits = std::max(least, 0); digits < kMostDigits; ++digits) {
        const double power = std::pow(10.0, digits);
        bool exact = true;
        for (int i = 0; i <= limits.marks && exact; ++i) {
            const double label = limits.lower + i * limits.step;
            exact = std::fabs(std::round(label * power) / power - label) <= tolerance;
        }
        if (exact) {
            return digits;
        }
    }
    return kMostDigits;
}

AxisLimits withMarks(const AxisLimits& limits, int n) {
    AxisLimits fitted = limits;
    fitted.marks = n;
    fitted.step = (limits.upper - limits.lower) / n;
    return fitted;
}

}  // namespace vorlan
