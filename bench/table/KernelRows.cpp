// Kernels of lags against multiplications and additions on registers only.

#include <cstring>

#include "analysis/kernels/SlidingProducts.h"
#include "analysis/kernels/SquaredDifferences.h"
#include "table/Measure.h"
#include "table/PeakRate.h"
#include "table/PlainLoops.h"
#include "table/Rows.h"

namespace bench {

namespace {

using namespace vorlan;
using plain::Values;

constexpr std::size_t kSamples = 100'000;
constexpr std::size_t kLags = 10'000;
constexpr double kTerms = 0.5 * kLags * (2.0 * kSamples - kLags + 1.0);
// The plain loops take every so many lags: an odd number meets all lanes.
constexpr std::size_t kStride = 97;

struct Series {
    Values x = plain::record(kSamples, 1);
    Values y = plain::record(kSamples, 2);
    Values shorter{x.begin(), x.end() - 1};
    Values weights = plain::record(6000, 3);
    /// What the kernels gave, by benchmark.
    std::map<std::string, Values> sums;

    std::span<const double> later() const { return std::span(x).subspan(1); }
};

struct Loop {
    const char* name;
    const char* what;
    /// Floating-point operations of the definition.
    double operations;
    Values (*kernel)(const Series&, const KernelSet&);
    Values (*plainLags)(const Series&);
    /// Per cent of the peak, by instruction set, or of the best one that there is.
    Goal goals[3];
    Goal best = {};
};

template <std::size_t taps>
constexpr double kFilterOperations = 2.0 * (kSamples - taps) * taps;

template <std::size_t taps>
Values filter(const Series& s, const KernelSet& kernels) {
    return slidingProducts(s.later(), std::span(s.weights).first(taps), kSamples - taps, noProgress(), kernels);
}

template <std::size_t taps>
Values plainFilter(const Series& s) {
    return plain::products(s.later(), std::span(s.weights).first(taps), 0, kSamples - taps, kStride);
}

const Loop kLoops[] = {
    {"autocovariance",
     "autocovariance",
     2.0 * kTerms,
     [](const Series& s, const KernelSet& kernels) { return slidingProducts(s.x, s.x, kLags, noProgress(), kernels); },
     [](const Series& s) { return plain::products(s.x, s.x, 0, kLags, kStride); },
     {atLeast(50), atLeast(75), atLeast(85)}},
    {"correlation",
     "cross-correlation, one direction",
     2.0 * kTerms,
     [](const Series& s, const KernelSet& kernels) {
         return slidingProducts(s.shorter, s.y, kLags, noProgress(), kernels);
     },
     [](const Series& s) { return plain::products(s.shorter, s.y, 0, kLags, kStride); },
     {atLeast(50), atLeast(75), atLeast(85)}},
    {"structure",
     "structure function",
     3.0 * kTerms,
     [](const Series& s, const KernelSet& kernels) { return squaredDifferences(s.x, kLags, noProgress(), kernels); },
     [](const Series& s) { return plain::squaredDifferences(s.x, 0, kLags, kStride); },
     {{}, atLeast(70), atLeast(90)}},
    {"filter500", "filter of 500 taps", kFilterOperations<500>, filter<500>, plainFilter<500>, {}, atLeast(65)},
    {"filter6000", "filter of 6000 taps", kFilterOperations<6000>, filter<6000>, plainFilter<6000>, {}, atLeast(85)},
};

std::string benchmarkName(const Loop& loop, InstructionSet set) {
    return std::string("kernels/") + loop.name + "/" + nameOf(set);
}

bool bitsEqual(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// Against the plain loop and against every other set that ran.
bool equalBits(const Series& series, const Loop& loop, const Values& sums) {
    const Values plainLags = loop.plainLags(series);
    for (std::size_t i = 0; i < plainLags.size(); ++i) {
        if (!bitsEqual(sums[i * kStride], plainLags[i])) {
            return false;
        }
    }
    for (const InstructionSet set : availableInstructionSets()) {
        const auto other = series.sums.find(benchmarkName(loop, set));
        if (other != series.sums.end() &&
            !std::equal(sums.begin(), sums.end(), other->second.begin(), other->second.end(), bitsEqual)) {
            return false;
        }
    }
    return true;
}

}  // namespace

void kernelRows(Table& table) {
    table.section("Kernels of lags, 100,000 samples, 10,000 lags, one series, one thread");
    const Lazy<Series> series;
    for (const InstructionSet set : availableInstructionSets()) {
        const bool best = set == availableInstructionSets().back();
        const std::string peak = registerPeak("kernels", set);
        for (const Loop& loop : kLoops) {
            const std::string name = benchmarkName(loop, set);
            measure(name, series, [=, &loop](Series& s) { s.sums[name] = loop.kernel(s, kernelsOf(set)); });
            const Goal goal = best && loop.best.kind != Goal::None ? loop.best : loop.goals[static_cast<int>(set)];
            table.row(loop.what + std::string(", ") + nameOf(set), {name, peak}, "% of peak", goal,
                      [=, &loop](const Times& times) {
                          const double rate = peakRate(times, peak, set);
                          const Finding bits = equality(equalBits(series(), loop, series().sums[name]), "bits");
                          return Cell{100.0 * loop.operations / times.best(name) / rate,
                                      format("%s, %.4g ms, peak %.3g Gflop/s", bits.text.c_str(),
                                             1e3 * times.median(name), rate / 1e9),
                                      bits.right};
                      });
        }
    }
}

}  // namespace bench
