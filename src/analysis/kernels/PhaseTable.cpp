#include "analysis/kernels/PhaseTable.h"

#include <cmath>
#include <numbers>

#include "model/Angles.h"

namespace vorlan {

PhaseTable::PhaseTable(std::size_t length) : turn_(2 * length), circle_(turn_) {
    // What the double nearest to pi lacks itself.
    constexpr double kRest = 1.2246467991473532e-16;
    lack_ = (std::numbers::pi - kPi + kRest) / static_cast<double>(length);
    // One quadrant is computed, the others mirror it.
    for (std::size_t m = 0; 2 * m <= length; ++m) {
        const double angle = std::numbers::pi * static_cast<double>(m) / static_cast<double>(length);
        const Point p{std::cos(angle), std::sin(angle)};
        circle_[m] = p;
        circle_[length - m] = {-p.cosine, p.sine};
        circle_[length + m] = {-p.cosine, -p.sine};
        if (m > 0) {
            circle_[turn_ - m] = {p.cosine, -p.sine};
        }
    }
}

void PhaseTable::fill(std::size_t first, std::size_t stride, std::size_t rows, PhaseRow* table) const {
    std::array<std::size_t, kFrequencyBlock> place{};
    std::array<std::size_t, kFrequencyBlock> step{};
    for (std::size_t f = 0; f < kFrequencyBlock; ++f) {
        step[f] = (first + f) * stride % turn_;
    }
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t f = 0; f < kFrequencyBlock; ++f) {
            const Point& p = circle_[place[f]];
            const double lack = static_cast<double>((first + f) * (row * stride)) * lack_;
            const double loss = 0.5 * lack * lack;
            table[row].cosine[f] = p.cosine + p.sine * lack - p.cosine * loss;
            table[row].sine[f] = p.sine - p.cosine * lack - p.sine * loss;
            place[f] += step[f];
            place[f] = place[f] < turn_ ? place[f] : place[f] - turn_;
        }
    }
}

}  // namespace vorlan
