#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace vorlan {

/// Quadrants 1..4 of the fluctuation plane, then the hole.
inline constexpr int kQuadrantBuckets = 5;
inline constexpr int kHole = 4;

/// Bucket of a sample by the signs of its fluctuations: 0..3 for quadrants 1..4, the hole when one is on an axis.
inline int quadrantOf(double a, double b) {
    // Signs are as good as random from sample to sample: a table costs less than branches.
    constexpr std::array<std::int8_t, 16> kBuckets = {kHole, kHole, kHole, kHole, kHole, 0,     1,     kHole,
                                                      kHole, 3,     2,     kHole, kHole, kHole, kHole, kHole};
    const unsigned key = (a > 0.0 ? 1U : 0U) | (a < 0.0 ? 2U : 0U) | (b > 0.0 ? 4U : 0U) | (b < 0.0 ? 8U : 0U);
    return kBuckets[key];
}

/// Sums over the samples of each bucket, one element per hole size.
struct HoleSums {
    std::array<std::vector<std::uint32_t>, kQuadrantBuckets> units;    ///< of trunc(r / unit), modulo 2^32
    std::array<std::vector<std::uint32_t>, kQuadrantBuckets> samples;  ///< number of samples
    bool exceeded = false;                                             ///< a sum of units has left 32 bits with sign
};

/// Sweeps the hole sizes h * increment, h = 0..sizes-1, over the samples in one pass: a sample with |r| > h * increment
/// is counted in its quadrant, else in the hole. increment must be positive unless there are no sizes.
HoleSums sweepHoles(std::span<const double> r, std::span<const double> a, std::span<const double> b, double increment,
                    int sizes, double unit);

}  // namespace vorlan
