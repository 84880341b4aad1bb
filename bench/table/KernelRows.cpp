// Kernels of lags against multiplications and additions on registers only, measured between the rounds.

#include <algorithm>
#include <cstring>

#include "Peak.h"
#include "analysis/kernels/SlidingProducts.h"
#include "analysis/kernels/SquaredDifferences.h"
#include "table/PlainLoops.h"
#include "table/Rows.h"

namespace bench {

namespace {

using namespace vorlan;
using plain::Values;

constexpr std::size_t kSamples = 100'000;
constexpr std::size_t kLags = 10'000;
constexpr int kRounds = 9;
// The plain loops take every so many lags: an odd number meets all lanes.
constexpr std::size_t kStride = 97;

/// What a set is to reach, per cent of its peak.
struct SetGoals {
    double products;
    double differences;
};

SetGoals goalsOf(InstructionSet set) {
    switch (set) {
        case InstructionSet::Avx512:
            return {85.0, 90.0};
        case InstructionSet::Avx2:
            return {75.0, 70.0};
        default:
            return {50.0, 0.0};
    }
}

std::string equality(const Values& kernel, const Values& plainLags) {
    for (std::size_t i = 0; i < plainLags.size(); ++i) {
        if (std::memcmp(&kernel[i * kStride], &plainLags[i], sizeof(double)) != 0) {
            return "BITS DIFFER";
        }
    }
    return "bits equal";
}

class SetRows {
  public:
    SetRows(Table& table, InstructionSet set) : table_(table), set_(set) {}

    /// operations: floating-point operations of the definition. result(): the kernel's sums.
    template <class Kernel>
    void row(const std::string& what, double operations, const Values& expected, double goal, Kernel kernel) {
        Values result;
        const auto peak = [this] { rounds_ = peakLoop()(kPeakRounds, peakOut_); };
        const auto times = rounds(kRounds, {peak, [&] { result = kernel(); }, peak});
        // The best of either: what the registers can do is not less because somebody else used the core.
        const double peakTime = std::min(best(times[0]), best(times[2]));
        const double peakRate = static_cast<double>(rounds_) / peakTime;
        const double share = 100.0 * operations / best(times[1]) / peakRate;
        char note[80];
        std::snprintf(note, sizeof note, "%s, %.4g ms, peak %.3g Gflop/s", equality(result, expected).c_str(),
                      1e3 * median(times[1]), peakRate / 1e9);
        table_.row(what + ", " + nameOf(set_), share, "% of peak", goal > 0.0 ? Goal::AtLeast : Goal::None, goal, note);
    }
    const KernelSet& kernels() const { return kernelsOf(set_); }
    SetGoals goals() const { return goalsOf(set_); }

  private:
    using PeakLoop = std::size_t (*)(std::size_t, double*);
    static constexpr std::size_t kPeakRounds = 300'000;

    PeakLoop peakLoop() const {
        return set_ == InstructionSet::Avx512 ? peakAvx512 : set_ == InstructionSet::Avx2 ? peakAvx2 : peakPlain;
    }

    Table& table_;
    InstructionSet set_;
    double peakOut_[3] = {0.999, 0.001, 0.0};
    std::size_t rounds_ = 0;
};

}  // namespace

void kernelRows(Table& table) {
    table.section("Kernels of lags, 100,000 samples, 10,000 lags, one series, one thread");
    const Values x = plain::record(kSamples, 1);
    const Values y = plain::record(kSamples, 2);
    const std::span<const double> shortX = std::span(x).first(kSamples - 1);
    const Values covariance = plain::products(x, x, 0, kLags, kStride);
    const Values crossed = plain::products(shortX, y, 0, kLags, kStride);
    const Values structure = plain::squaredDifferences(x, 0, kLags, kStride);
    const double terms = 0.5 * kLags * (2.0 * kSamples - kLags + 1.0);
    NoProgress progress;
    for (const InstructionSet set : availableInstructionSets()) {
        SetRows rows(table, set);
        const KernelSet& kernels = rows.kernels();
        rows.row("autocovariance", 2.0 * terms, covariance, rows.goals().products,
                 [&] { return slidingProducts(x, x, kLags, progress, kernels); });
        rows.row("cross-correlation, one direction", 2.0 * terms, crossed, rows.goals().products,
                 [&] { return slidingProducts(shortX, y, kLags, progress, kernels); });
        rows.row("structure function", 3.0 * terms, structure, rows.goals().differences,
                 [&] { return squaredDifferences(x, kLags, progress, kernels); });
        for (const std::size_t taps : {500U, 6000U}) {
            const Values weights = plain::record(taps, 3);
            const std::size_t outputs = kSamples - taps;
            const bool best = set == availableInstructionSets().back();
            rows.row("filter of " + std::to_string(taps) + " taps", 2.0 * static_cast<double>(outputs * taps),
                     plain::products(std::span(x).subspan(1), weights, 0, outputs, kStride),
                     !best         ? 0.0
                     : taps < 6000 ? 65.0
                                   : 85.0,
                     [&] { return slidingProducts(std::span(x).subspan(1), weights, outputs, progress, kernels); });
        }
    }
}

}  // namespace bench
