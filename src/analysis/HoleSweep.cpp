#include "analysis/HoleSweep.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "model/Index.h"
#include "model/StoreValue.h"

namespace vorlan {

namespace {

constexpr std::size_t kQuadrants = 4;

struct Tally {
    std::uint32_t units = 0;
    std::uint32_t samples = 0;
    std::int64_t whole = 0;  // the units without wrapping
};

bool leaves32Bits(std::int64_t sum) {
    return sum != static_cast<std::int32_t>(sum);
}

/// Number of hole sizes that a magnitude exceeds. bounds holds the rising sizes h * increment from its second element
/// on, between one that every magnitude exceeds and one that none does: the estimate is put right by the same
/// comparisons that a loop over the sizes would make.
std::size_t sizesExceeded(double magnitude, double perIncrement, double sizes, const double* bounds) {
    // Also for not a number, which exceeds nothing.
    if (!(magnitude > 0.0)) {
        return 0;
    }
    auto h = asSize(static_cast<std::int64_t>(std::min(magnitude * perIncrement, sizes)));
    while (!(magnitude > bounds[h])) {
        --h;
    }
    while (magnitude > bounds[h + 1]) {
        ++h;
    }
    return h;
}

}  // namespace

HoleSums sweepHoles(std::span<const double> r, std::span<const double> a, std::span<const double> b, double increment,
                    int sizes, double unit) {
    const auto count = asSize(sizes > 0 ? sizes : 0);
    HoleSums sums;
    for (std::size_t q = 0; q < kQuadrantBuckets; ++q) {
        sums.units[q].resize(count);
        sums.samples[q].resize(count);
    }
    if (count == 0) {
        return sums;
    }
    const std::size_t rows = count + 1;
    // One row of tallies per quadrant, by the number of sizes that a sample exceeds.
    std::vector<Tally> tallies(kQuadrants * rows);
    Tally all{0, static_cast<std::uint32_t>(r.size()), 0};
    std::vector<double> bounds(count + 2, -1.0);
    for (std::size_t h = 0; h < count; ++h) {
        bounds[h + 1] = static_cast<double>(h) * increment;
    }
    bounds.back() = std::numeric_limits<double>::infinity();
    const double perIncrement = 1.0 / increment;
    for (std::size_t j = 0; j < r.size(); ++j) {
        const std::int32_t whole = truncateToInt32(r[j] / unit);
        const auto units = static_cast<std::uint32_t>(whole);
        all.units += units;
        all.whole += whole;
        const int quadrant = quadrantOf(a[j], b[j]);
        if (quadrant == kHole) {
            continue;
        }
        const std::size_t exceeded = sizesExceeded(std::fabs(r[j]), perIncrement, sizes, bounds.data());
        Tally& tally = tallies[asSize(quadrant) * rows + exceeded];
        tally.units += units;
        tally.whole += whole;
        ++tally.samples;
    }

    std::array<Tally, kQuadrants> outside;
    for (std::size_t h = count; h-- > 0;) {
        Tally hole = all;
        for (std::size_t q = 0; q < kQuadrants; ++q) {
            outside[q].units += tallies[q * rows + h + 1].units;
            outside[q].samples += tallies[q * rows + h + 1].samples;
            outside[q].whole += tallies[q * rows + h + 1].whole;
            sums.exceeded = sums.exceeded || leaves32Bits(outside[q].whole);
            sums.units[q][h] = outside[q].units;
            sums.samples[q][h] = outside[q].samples;
            hole.units -= outside[q].units;
            hole.samples -= outside[q].samples;
            hole.whole -= outside[q].whole;
        }
        sums.exceeded = sums.exceeded || leaves32Bits(hole.whole);
        sums.units[kHole][h] = hole.units;
        sums.samples[kHole][h] = hole.samples;
    }
    return sums;
}

}  // namespace vorlan
