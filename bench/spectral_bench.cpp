// Speed of the spectral functions, as ratios within one run: to the plain loops that read every sample through its
// column, to plain loops over doubles, and to the most that multiplications and additions on registers reach.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <string>

#include "Peak.h"
#include "analysis/LagWindow.h"
#include "analysis/kernels/SlidingProducts.h"
#include "analysis/kernels/SquaredDifferences.h"
#include "analysis/kernels/TrigonometricSums.h"
#include "model/Angles.h"
#include "model/SArray.h"

namespace {

using namespace vorlan;

constexpr int kSamples = 100'000;
constexpr int kLags = 10'000;
// The plain loops are timed for a part of the lags or frequencies: their time is proportional.
constexpr int kPlainShare = 10;

/// Processor time of this thread: others on the machine do not count.
double now() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double seconds(const auto& work) {
    const double start = now();
    work();
    return now() - start;
}

double bestOf(int times, const auto& work) {
    double best = seconds(work);
    for (int i = 1; i < times; ++i) {
        best = std::min(best, seconds(work));
    }
    return best;
}

/// Floating-point operations per second on registers.
double peakRate(InstructionSet set) {
    const auto peak = set == InstructionSet::Avx512 ? peakAvx512 : set == InstructionSet::Avx2 ? peakAvx2 : peakPlain;
    double out[3] = {0.999, 0.001, 0.0};
    std::size_t operations = 0;
    const double time = bestOf(20, [&] { operations = peak(300'000, out); });
    benchmark::DoNotOptimize(out);
    return static_cast<double>(operations) / time;
}

const SArray& record() {
    static const SArray column = [] {
        SArray values(0.01);
        std::uint32_t seed = 1;
        for (int i = 0; i < kSamples; ++i) {
            seed = seed * 1664525U + 1013904223U;
            values.AddValue(50.0 + 10.0 * std::sin(0.01 * i) + static_cast<double>(seed >> 8) / 16777216.0);
        }
        return values;
    }();
    return column;
}

std::vector<double> deviations() {
    std::vector<double> values = record().Values();
    for (double& v : values) {
        v -= 50.0;
    }
    return values;
}

std::vector<double> windowedCovariance() {
    std::vector<double> terms(kLags - 1);
    for (int k = 1; k < kLags - 1; ++k) {
        terms[static_cast<std::size_t>(k)] = lagWindowWeight(1, k, kLags - 1) * 50.0 * std::cos(0.01 * k);
    }
    return terms;
}

/// Times of the plain loops for one component, measured once.
struct PlainTimes {
    double accessor = 0.0;
    double hoisted = 0.0;
};

PlainTimes plainOfLags(bool products) {
    const SArray& column = record();
    const std::vector<double> d = deviations();
    const double mean = 50.0;
    double sink = 0.0;
    const auto term = [products](double a, double b) { return products ? a * b : (a - b) * (a - b); };
    PlainTimes times;
    // Every kPlainShare-th lag, so that short and long sums have their share.
    times.accessor = kPlainShare * bestOf(2, [&] {
                         for (int k = 0; k < kLags; k += kPlainShare) {
                             double sum = 0.0;
                             for (int j = 0; j < kSamples - k; ++j) {
                                 sum += term(column.GetValue(j + k) - mean, column.GetValue(j) - mean);
                             }
                             sink += sum;
                         }
                     });
    times.hoisted = kPlainShare * bestOf(2, [&] {
                        for (std::size_t k = 0; k < kLags; k += kPlainShare) {
                            double sum = 0.0;
                            for (std::size_t j = 0; j < kSamples - k; ++j) {
                                sum += term(d[j + k], d[j]);
                            }
                            sink += sum;
                        }
                    });
    benchmark::DoNotOptimize(sink);
    return times;
}

PlainTimes plainOfFrequencies() {
    SArray covariance(1e-5);
    covariance.StoreValues(windowedCovariance());
    const std::vector<double> terms = windowedCovariance();
    const double length = kLags - 1;
    double sink = 0.0;
    PlainTimes times;
    constexpr int kStride = 10 * kPlainShare;
    times.accessor =
        kStride * seconds([&] {
            for (int i = 0; i < kLags; i += kStride) {
                for (int k = 1; k < kLags - 1; ++k) {
                    sink += lagWindowWeight(1, k, length) * covariance.GetValue(k) * std::cos(kPi * i * k / length);
                }
            }
        });
    times.hoisted = kStride * bestOf(5, [&] {
                        for (int i = 0; i < kLags; i += kStride) {
                            for (std::size_t k = 1; k < terms.size(); ++k) {
                                sink += terms[k] * std::cos(kPi * i * static_cast<double>(k) / length);
                            }
                        }
                    });
    benchmark::DoNotOptimize(sink);
    return times;
}

/// Times the kernel and reports ratios; work is what the plain loops do so many times, in operations.
void report(benchmark::State& state, InstructionSet set, const PlainTimes& plain, double components, double operations,
            const auto& work) {
    const double before = peakRate(set);
    double best = 1e9;
    for (auto _ : state) {
        const double time = seconds(work);
        state.SetIterationTime(time);
        best = std::min(best, time);
    }
    const double peak = std::max(before, peakRate(set));
    state.counters["x_accessor"] = components * plain.accessor / best;
    state.counters["x_hoisted"] = components * plain.hoisted / best;
    state.counters["Gflops"] = operations / best / 1e9;
    state.counters["peak_Gflops"] = peak / 1e9;
    state.counters["peak_%"] = 100.0 * operations / best / peak;
}

constexpr double kTermsOfLags = 0.5 * kLags * (2.0 * kSamples - kLags + 1.0);

void autocovariance(benchmark::State& state, InstructionSet set) {
    static const PlainTimes plain = plainOfLags(true);
    const std::vector<double> d = deviations();
    NoProgress progress;
    report(state, set, plain, 1.0, 2.0 * kTermsOfLags,
           [&] { benchmark::DoNotOptimize(slidingProducts(d, d, kLags, progress, kernelsOf(set))); });
}

void structureFunction(benchmark::State& state, InstructionSet set) {
    static const PlainTimes plain = plainOfLags(false);
    const std::vector<double> d = deviations();
    NoProgress progress;
    report(state, set, plain, 1.0, 3.0 * kTermsOfLags,
           [&] { benchmark::DoNotOptimize(squaredDifferences(d, kLags, progress, kernelsOf(set))); });
}

void spectra(benchmark::State& state, InstructionSet set) {
    static const PlainTimes plain = plainOfFrequencies();
    const auto series = static_cast<std::size_t>(state.range(0));
    const std::vector<std::vector<double>> terms(series, windowedCovariance());
    NoProgress progress;
    // A product and a sum for each term; the cosines are shared.
    const double operations = 2.0 * static_cast<double>(series) * kLags * (kLags - 2.0);
    report(state, set, plain, static_cast<double>(series), operations,
           [&] { benchmark::DoNotOptimize(cosineSums(terms, kLags - 1, kLags, progress, kernelsOf(set))); });
}

}  // namespace

int main(int argc, char** argv) {
    for (const InstructionSet set : availableInstructionSets()) {
        const std::string suffix = std::string("/") + nameOf(set);
        benchmark::RegisterBenchmark(("autocovariance" + suffix).c_str(), autocovariance, set)->UseManualTime();
        benchmark::RegisterBenchmark(("structure function" + suffix).c_str(), structureFunction, set)->UseManualTime();
        benchmark::RegisterBenchmark(("spectrum" + suffix).c_str(), spectra, set)->UseManualTime()->Arg(1)->Arg(3);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
