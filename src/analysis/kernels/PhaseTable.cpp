#include "analysis/kernels/PhaseTable.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "model/Angles.h"
#include "model/Errors.h"

namespace vorlan {

PhaseTable::PhaseTable(std::size_t length) : turn_(2 * length), circle_(turn_) {
    if (length == 0) {
        throw InvalidArgument();
    }
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

PhaseTable::Places PhaseTable::placesOf(std::size_t first, std::size_t lag) const {
    Places places{};
    for (std::size_t f = 0; f < kFrequencyBlock; ++f) {
        places[f] = (first + f) * lag % turn_;
    }
    return places;
}

void PhaseTable::advance(Places& places, const Places& step) const {
    for (std::size_t f = 0; f < kFrequencyBlock; ++f) {
        const std::size_t next = places[f] + step[f];
        places[f] = next < turn_ ? next : next - turn_;
    }
}

void PhaseTable::lookUp(const Places& places, std::size_t first, std::size_t lag, PhaseRow& row) const {
    for (std::size_t f = 0; f < kFrequencyBlock; ++f) {
        const Point& p = circle_[places[f]];
        const double lack = static_cast<double>((first + f) * lag) * lack_;
        const double loss = 0.5 * lack * lack;
        row.cosine[f] = p.cosine + p.sine * lack - p.cosine * loss;
        row.sine[f] = p.sine - p.cosine * lack - p.sine * loss;
    }
}

double PhaseTable::cosine(std::size_t frequency, std::size_t lag) const {
    const Point& p = circle_[frequency * lag % turn_];
    const double lack = static_cast<double>(frequency * lag) * lack_;
    return p.cosine + p.sine * lack - p.cosine * (0.5 * lack * lack);
}

void PhaseTable::fill(std::size_t first, std::size_t start, std::size_t stride, std::size_t rows,
                      PhaseRow* table) const {
    // Row a * kGroup + b adds two phases: looking all of them up would take as long as the sums.
    constexpr std::size_t kGroup = 16;
    std::array<PhaseRow, kGroup> inner;
    Places places{};
    const Places innerStep = placesOf(first, stride);
    for (std::size_t b = 0; b < std::min(kGroup, rows); ++b) {
        lookUp(places, first, b * stride, inner[b]);
        advance(places, innerStep);
    }
    places = placesOf(first, start);
    const Places outerStep = placesOf(first, kGroup * stride);
    for (std::size_t a = 0; a < rows; a += kGroup) {
        PhaseRow outer;
        lookUp(places, first, start + a * stride, outer);
        advance(places, outerStep);
        for (std::size_t b = 0; b < std::min(kGroup, rows - a); ++b) {
            PhaseRow& row = table[a + b];
            for (std::size_t f = 0; f < kFrequencyBlock; ++f) {
                row.cosine[f] = outer.cosine[f] * inner[b].cosine[f] - outer.sine[f] * inner[b].sine[f];
                row.sine[f] = outer.sine[f] * inner[b].cosine[f] + outer.cosine[f] * inner[b].sine[f];
            }
        }
    }
}

}  // namespace vorlan
