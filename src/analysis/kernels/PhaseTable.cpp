#include "analysis/kernels/PhaseTable.h"

#include <cmath>
#include <numbers>

#include "model/Angles.h"
#include "model/Errors.h"

namespace vorlan {

PhaseTable::PhaseTable(std::size_t length) : points_(2 * length) {
    if (length == 0) {
        throw InvalidArgument();
    }
    // What the double nearest to pi lacks itself.
    constexpr double kRest = 1.2246467991473532e-16;
    lack_ = (std::numbers::pi - kPi + kRest) / static_cast<double>(length);
    // One quadrant is computed, the others mirror it.
    for (std::size_t m = 0; 2 * m <= length; ++m) {
        const double angle = std::numbers::pi * static_cast<double>(m) / static_cast<double>(length);
        const PhaseCircle::Point p{std::cos(angle), std::sin(angle)};
        points_[m] = p;
        points_[length - m] = {-p.cosine, p.sine};
        points_[length + m] = {-p.cosine, -p.sine};
        if (m > 0) {
            points_[2 * length - m] = {p.cosine, -p.sine};
        }
    }
}

double PhaseTable::cosineSum(std::span<const double> terms, std::size_t frequency) const {
    const std::size_t step = frequency % points_.size();
    std::size_t place = 0;
    double sum = 0.0;
    for (std::size_t k = 0; k < terms.size(); ++k) {
        const PhaseCircle::Point& p = points_[place];
        const double lack = static_cast<double>(frequency * k) * lack_;
        sum += terms[k] * (p.cosine + p.sine * lack - p.cosine * (0.5 * lack * lack));
        place += step;
        place -= place < points_.size() ? 0 : points_.size();
    }
    return sum;
}

}  // namespace vorlan
