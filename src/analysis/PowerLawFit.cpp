#include "analysis/PowerLawFit.h"

#include <cmath>
#include <vector>

namespace vorlan {

namespace {

struct LogPoint {
    double x;
    double y;
};

}  // namespace

std::optional<double> powerLawExponent(std::span<const double> x, std::span<const double> y) {
    std::vector<LogPoint> points;
    LogPoint mean{0.0, 0.0};
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (x[i] > 0.0 && y[i] > 0.0 && std::isfinite(x[i]) && std::isfinite(y[i])) {
            points.push_back({std::log10(x[i]), std::log10(y[i])});
            mean.x += points.back().x;
            mean.y += points.back().y;
        }
    }
    mean.x /= static_cast<double>(points.size());
    mean.y /= static_cast<double>(points.size());
    double products = 0.0;
    double squares = 0.0;
    for (const LogPoint& point : points) {
        products += (point.x - mean.x) * (point.y - mean.y);
        squares += (point.x - mean.x) * (point.x - mean.x);
    }
    return squares > 0.0 ? std::optional(products / squares) : std::nullopt;
}

}  // namespace vorlan
