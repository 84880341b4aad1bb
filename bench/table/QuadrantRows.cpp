// Hole sweep and event patterns against plain loops of the same definitions.

#include <array>
#include <cmath>

#include "analysis/EventPatterns.h"
#include "analysis/HoleSweep.h"
#include "model/StoreValue.h"
#include "table/PlainLoops.h"
#include "table/Rows.h"

namespace bench {

namespace {

using namespace vorlan;
using plain::Values;

constexpr std::size_t kSamples = 100'000;
constexpr int kSizes = 100;
constexpr double kIncrement = 0.2;
constexpr double kUnit = 1e-5;
constexpr int kReach = 250;

struct QuadrantRecord {
    Values a = plain::record(kSamples, 1);
    Values b = plain::record(kSamples, 2);
    Values r;
    std::vector<std::size_t> events;

    QuadrantRecord() {
        for (std::size_t j = 0; j < kSamples; ++j) {
            b[j] -= 0.4 * a[j];
            r.push_back(a[j] * b[j] / -25.0);
            if (quadrantOf(a[j], b[j]) == 1 && r[j] > 1.0) {
                events.push_back(j);
            }
        }
    }
};

HoleSums plainHoles(const QuadrantRecord& record) {
    HoleSums sums;
    for (std::size_t q = 0; q < kQuadrantBuckets; ++q) {
        sums.units[q].resize(kSizes);
        sums.samples[q].resize(kSizes);
    }
    for (std::size_t h = 0; h < kSizes; ++h) {
        const double hole = static_cast<double>(h) * kIncrement;
        for (std::size_t j = 0; j < kSamples; ++j) {
            const double r = record.r[j];
            const auto bucket =
                static_cast<std::size_t>(std::fabs(r) > hole ? quadrantOf(record.a[j], record.b[j]) : kHole);
            sums.units[bucket][h] += static_cast<std::uint32_t>(truncateToInt32(r / kUnit));
            ++sums.samples[bucket][h];
        }
    }
    return sums;
}

Values plainPattern(const QuadrantRecord& record) {
    Values pattern;
    for (long tau = -kReach; tau <= kReach; ++tau) {
        double sum = 0.0;
        int count = 0;
        for (const std::size_t event : record.events) {
            const long j = static_cast<long>(event) + tau;
            if (j >= 0 && j < static_cast<long>(kSamples)) {
                sum += record.a[static_cast<std::size_t>(j)];
                ++count;
            }
        }
        pattern.push_back(sum / count);
    }
    return pattern;
}

}  // namespace

void quadrantRows(Table& table) {
    table.section("Quadrants, 100,000 samples");
    const QuadrantRecord record;
    HoleSums expected;
    HoleSums sums;
    const auto holes = rounds(9, {[&] { expected = plainHoles(record); },
                                  [&] { sums = sweepHoles(record.r, record.a, record.b, kIncrement, kSizes, kUnit); }});
    const bool same = sums.units == expected.units && sums.samples == expected.samples;
    table.row("hole sweep, 100 sizes", medianRatio(holes[0], holes[1]), "x the loop", Goal::AtLeast, 50.0,
              same ? "integers equal" : "INTEGERS DIFFER");
    Values expectedPattern;
    Values pattern;
    const auto patterns = rounds(9, {[&] { expectedPattern = plainPattern(record); },
                                     [&] { pattern = averageAround(record.events, record.a, kReach); }});
    table.row("event patterns, 501 lags", medianRatio(patterns[0], patterns[1]), "x the loop", Goal::AtLeast, 15.0,
              pattern == expectedPattern ? "bits equal" : "BITS DIFFER");
}

}  // namespace bench
