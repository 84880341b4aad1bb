// Hole sweep and event patterns against plain loops of the same definitions.

#include <cmath>

#include "analysis/EventPatterns.h"
#include "analysis/HoleSweep.h"
#include "model/StoreValue.h"
#include "table/Measure.h"
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

    HoleSums expectedHoles;
    HoleSums holes;
    Values expectedPattern;
    Values pattern;

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
    const Lazy<QuadrantRecord> record;
    measure("quadrants/holes/loop", record, [](QuadrantRecord& r) { r.expectedHoles = plainHoles(r); });
    measure("quadrants/holes/sweep", record,
            [](QuadrantRecord& r) { r.holes = sweepHoles(r.r, r.a, r.b, kIncrement, kSizes, kUnit); });
    measure("quadrants/events/loop", record, [](QuadrantRecord& r) { r.expectedPattern = plainPattern(r); });
    measure("quadrants/events/average", record,
            [](QuadrantRecord& r) { r.pattern = averageAround(r.events, r.a, kReach); });
    table.ratio(
        "hole sweep, 100 sizes", "quadrants/holes/loop", "quadrants/holes/sweep", "x the loop", atLeast(50.0), [=] {
            const QuadrantRecord& r = record();
            return equality(r.holes.units == r.expectedHoles.units && r.holes.samples == r.expectedHoles.samples,
                            "integers");
        });
    table.ratio("event patterns, 501 lags", "quadrants/events/loop", "quadrants/events/average", "x the loop",
                atLeast(15.0), [=] { return equality(record().pattern == record().expectedPattern, "bits"); });
}

}  // namespace bench
