#include "analysis/HoleSweep.h"

#include <cmath>
#include <cstddef>

#include "model/StoreValue.h"

namespace vorlan {

namespace {

constexpr std::size_t kQuadrants = 4;

struct Tally {
    std::uint32_t units = 0;
    std::uint32_t samples = 0;
};

/// Number of hole sizes that a sample exceeds. The sizes rise with h, so the estimate is put right by the same
/// comparison that a loop over the sizes would make.
std::size_t sizesExceeded(double magnitude, double increment, double perIncrement, std::size_t sizes) {
    // Also for not a number, which exceeds nothing.
    if (!(magnitude > 0.0)) {
        return 0;
    }
    const double estimate = magnitude * perIncrement;
    std::size_t h = estimate < static_cast<double>(sizes) ? static_cast<std::size_t>(estimate) : sizes;
    while (h > 0 && !(magnitude > static_cast<double>(h - 1) * increment)) {
        --h;
    }
    while (h < sizes && magnitude > static_cast<double>(h) * increment) {
        ++h;
    }
    return h;
}

}  // namespace

int quadrantOf(double a, double b) {
    // Signs are as good as random from sample to sample: a table costs less than branches.
    static constexpr std::array<std::int8_t, 16> kBuckets = {kHole, kHole, kHole, kHole, kHole, 0,     1,     kHole,
                                                             kHole, 3,     2,     kHole, kHole, kHole, kHole, kHole};
    const unsigned key = (a > 0.0 ? 1U : 0U) | (a < 0.0 ? 2U : 0U) | (b > 0.0 ? 4U : 0U) | (b < 0.0 ? 8U : 0U);
    return kBuckets[key];
}

HoleSums sweepHoles(std::span<const double> r, std::span<const double> a, std::span<const double> b, double increment,
                    int sizes, double unit) {
    const auto count = static_cast<std::size_t>(sizes > 0 ? sizes : 0);
    HoleSums sums;
    for (std::size_t q = 0; q < kQuadrantBuckets; ++q) {
        sums.units[q].resize(count);
        sums.samples[q].resize(count);
    }
    if (count == 0) {
        return sums;
    }
    const std::size_t rows = count + 1;
    // One row of tallies per quadrant, by the number of sizes that a sample exceeds; samples of the hole exceed none.
    std::vector<Tally> tallies(kQuadrants * rows);
    Tally all;
    const double perIncrement = 1.0 / increment;
    for (std::size_t j = 0; j < r.size(); ++j) {
        const auto units = static_cast<std::uint32_t>(truncateToInt32(r[j] / unit));
        all.units += units;
        ++all.samples;
        const int quadrant = quadrantOf(a[j], b[j]);
        const std::size_t row = quadrant == kHole ? 0 : static_cast<std::size_t>(quadrant) * rows;
        const std::size_t h = quadrant == kHole ? 0 : sizesExceeded(std::fabs(r[j]), increment, perIncrement, count);
        Tally& tally = tallies[row + h];
        tally.units += units;
        ++tally.samples;
    }

    std::array<Tally, kQuadrants> outside;
    for (std::size_t h = count; h-- > 0;) {
        Tally hole = all;
        for (std::size_t q = 0; q < kQuadrants; ++q) {
            outside[q].units += tallies[q * rows + h + 1].units;
            outside[q].samples += tallies[q * rows + h + 1].samples;
            sums.units[q][h] = outside[q].units;
            sums.samples[q][h] = outside[q].samples;
            hole.units -= outside[q].units;
            hole.samples -= outside[q].samples;
        }
        sums.units[kHole][h] = hole.units;
        sums.samples[kHole][h] = hole.samples;
    }
    return sums;
}

}  // namespace vorlan
