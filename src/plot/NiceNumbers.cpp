#include "plot/NiceNumbers.h"

#include <cmath>

namespace vorlan {

namespace {

// Beyond this many additions the sum is neither quick nor near a multiple any more.
constexpr double kMostAdditions = 1e6;

bool countable(double x, double step) {
    return std::isfinite(x) && step > 0.0 && std::fabs(x) / step <= kMostAdditions;
}

}  // namespace

DecimalSplit splitDecimal(double v) {
    if (!(v > 0.0)) {
        return {v, v};
    }
    double exponent = 0.0;
    const double fraction = std::modf(std::log10(v), &exponent);
    double mantissa = std::pow(10.0, fraction);
    if (mantissa < 1.0) {
        mantissa *= 10.0;
        exponent -= 1.0;
    }
    return {mantissa, exponent};
}

double niceMantissa(double m) {
    if (m < 1.0) {
        return m;
    }
    constexpr struct {
        double below;
        double step;
    } intervals[] = {{1.5, 1.0}, {2.5, 2.0}, {3.5, 2.5}, {4.5, 4.0}, {7.5, 5.0}, {8.0, 7.5}};
    for (const auto& interval : intervals) {
        if (m < interval.below) {
            return interval.step;
        }
    }
    return 10.0;
}

double niceStep(double raw) {
    const DecimalSplit split = splitDecimal(raw);
    return niceMantissa(split.mantissa) * std::pow(10.0, split.exponent);
}

double lowerLimit(double x, double step) {
    if (!countable(x, step)) {
        return step > 0.0 ? std::floor(x / step) * step : x;
    }
    double limit = 0.0;
    if (x > 0.0) {
        while (limit + step < x) {
            limit += step;
        }
        return limit;
    }
    do {
        limit -= step;
    } while (limit >= x);
    return limit;
}

double upperLimit(double x, double step) {
    if (!countable(x, step)) {
        return step > 0.0 ? std::ceil(x / step) * step : x;
    }
    double limit = 0.0;
    if (x > 0.0) {
        while (limit <= x) {
            limit += step;
        }
        return limit;
    }
    while (limit > x) {
        limit -= step;
    }
    return limit;
}

}  // namespace vorlan
