// Cross-spectral and quadrant analysis against plain loops of the same definitions, in one run.

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <random>
#include <vector>

#include "analysis/CrossLagWindow.h"
#include "analysis/CrossSpectralFunctions.h"
#include "analysis/EventPatterns.h"
#include "analysis/HoleSweep.h"
#include "model/Angles.h"
#include "model/StoreValue.h"

namespace {

using vorlan::kPi;
using Functions = std::vector<std::vector<double>>;

constexpr std::size_t kSamples = 100000;
constexpr int kLags = 10000;
constexpr int kTukey = 1;
const vorlan::CrossSpectrumRun kRun{kTukey, 0, 0.04};

std::vector<double> noise(std::size_t size, unsigned seed) {
    std::mt19937 engine(seed);
    std::normal_distribution<double> normal(0.0, 8.0);
    std::vector<double> values(size);
    for (double& v : values) {
        v = normal(engine);
    }
    return values;
}

/// Three covariance-like functions that fade over the lags.
Functions fadingFunctions() {
    Functions functions;
    for (unsigned f = 0; f < 3; ++f) {
        functions.push_back(noise(kLags, f));
        for (std::size_t k = 0; k < functions.back().size(); ++k) {
            functions.back()[k] *= std::exp(-static_cast<double>(k) / 1000.0);
        }
    }
    return functions;
}

void plainCovariance(benchmark::State& state) {
    const std::vector<double> x = noise(kSamples, 1);
    const std::vector<double> y = noise(kSamples, 2);
    for (auto _ : state) {
        std::vector<double> result(kLags);
        for (std::size_t k = 0; k < result.size(); ++k) {
            const std::size_t n = kSamples - k;
            double sum = 0.0;
            for (std::size_t j = 0; j + 1 < n; ++j) {
                sum += x[j + k] * y[j];
            }
            result[k] = sum / static_cast<double>(n);
        }
        benchmark::DoNotOptimize(result.data());
    }
}
BENCHMARK(plainCovariance)->Unit(benchmark::kMillisecond);

void crossCovariance(benchmark::State& state) {
    const std::vector<double> x = noise(kSamples, 1);
    const std::vector<double> y = noise(kSamples, 2);
    vorlan::NoProgress progress;
    for (auto _ : state) {
        benchmark::DoNotOptimize(vorlan::crossCovariance(x, y, kLags, progress));
    }
}
BENCHMARK(crossCovariance)->Unit(benchmark::kMillisecond);

/// Co- and quadrature spectra of three pairs with the window taken out of the loop over the frequencies.
Functions plainCrossSpectra(const Functions& functions) {
    const double length = kLags;
    std::vector<double> weights(kLags);
    for (std::size_t k = 0; k < weights.size(); ++k) {
        weights[k] = vorlan::crossLagWindowWeight(kRun.windowCode, static_cast<double>(k), length);
    }
    Functions spectra;
    for (const std::vector<double>& function : functions) {
        std::vector<double> terms(kLags);
        for (std::size_t k = 0; k < terms.size(); ++k) {
            terms[k] = weights[k] * function[k];
        }
        const auto phase = [](std::size_t i, std::size_t k) {
            return static_cast<double>(i) * kPi * static_cast<double>(k) / static_cast<double>(kLags);
        };
        std::vector<double> co(kLags);
        for (std::size_t i = 0; i < kLags; ++i) {
            double sum = 0.0;
            for (std::size_t k = 1; k + 1 < kLags; ++k) {
                sum += terms[k] * std::cos(phase(i, k));
            }
            co[i] = 2.0 * (function[0] + 2.0 * sum) * kRun.samplingInterval;
        }
        std::vector<double> quadrature(kLags - 1);
        for (std::size_t i = 1; i + 1 < kLags; ++i) {
            double sum = 0.0;
            for (std::size_t k = 1; k < kLags; ++k) {
                sum += terms[k] * std::sin(phase(i, k));
            }
            quadrature[i] = 2.0 * (function[0] + 2.0 * sum) * kRun.samplingInterval;
        }
        spectra.push_back(std::move(co));
        spectra.push_back(std::move(quadrature));
    }
    return spectra;
}

void plainCoAndQuadrature(benchmark::State& state) {
    const Functions functions = fadingFunctions();
    for (auto _ : state) {
        benchmark::DoNotOptimize(plainCrossSpectra(functions));
    }
}
BENCHMARK(plainCoAndQuadrature)->Unit(benchmark::kMillisecond);

/// Also counts the integers at 1e-7 that differ from those of the plain loop.
void coAndQuadrature(benchmark::State& state) {
    const Functions functions = fadingFunctions();
    vorlan::NoProgress progress;
    Functions co;
    Functions quadrature;
    for (auto _ : state) {
        co = vorlan::coSpectra(functions, kRun, progress);
        quadrature = vorlan::quadratureSpectra(functions, kRun, progress);
        benchmark::DoNotOptimize(co.data());
        benchmark::DoNotOptimize(quadrature.data());
    }
    const Functions plain = plainCrossSpectra(functions);
    int different = 0;
    for (std::size_t f = 0; f < functions.size(); ++f) {
        for (std::size_t i = 0; i < plain[2 * f].size(); ++i) {
            different += vorlan::truncateToInt32(plain[2 * f][i] / 1e-7) != vorlan::truncateToInt32(co[f][i] / 1e-7);
        }
        for (std::size_t i = 0; i < plain[2 * f + 1].size(); ++i) {
            different +=
                vorlan::truncateToInt32(plain[2 * f + 1][i] / 1e-7) != vorlan::truncateToInt32(quadrature[f][i] / 1e-7);
        }
    }
    state.counters["different"] = different;
}
BENCHMARK(coAndQuadrature)->Unit(benchmark::kMillisecond);

struct QuadrantRecord {
    std::vector<double> a = noise(kSamples, 1);
    std::vector<double> b = noise(kSamples, 2);
    std::vector<double> r;
    std::vector<std::size_t> events;

    QuadrantRecord() {
        for (std::size_t j = 0; j < kSamples; ++j) {
            b[j] -= 0.4 * a[j];
            r.push_back(a[j] * b[j] / -25.0);
            if (vorlan::quadrantOf(a[j], b[j]) == 1 && r[j] > 1.0) {
                events.push_back(j);
            }
        }
    }
};

constexpr int kSizes = 100;
constexpr double kIncrement = 0.2;
constexpr double kUnit = 1e-5;

void plainHoles(benchmark::State& state) {
    const QuadrantRecord record;
    for (auto _ : state) {
        std::vector<std::array<std::uint32_t, 5>> units(kSizes);
        std::vector<std::array<std::uint32_t, 5>> samples(kSizes);
        for (std::size_t h = 0; h < kSizes; ++h) {
            const double hole = static_cast<double>(h) * kIncrement;
            for (std::size_t j = 0; j < kSamples; ++j) {
                const double r = record.r[j];
                const auto bucket = static_cast<std::size_t>(
                    std::fabs(r) > hole ? vorlan::quadrantOf(record.a[j], record.b[j]) : vorlan::kHole);
                units[h][bucket] += static_cast<std::uint32_t>(vorlan::truncateToInt32(r / kUnit));
                ++samples[h][bucket];
            }
        }
        benchmark::DoNotOptimize(units.data());
        benchmark::DoNotOptimize(samples.data());
    }
}
BENCHMARK(plainHoles)->Unit(benchmark::kMillisecond);

void sweepHoles(benchmark::State& state) {
    const QuadrantRecord record;
    for (auto _ : state) {
        benchmark::DoNotOptimize(vorlan::sweepHoles(record.r, record.a, record.b, kIncrement, kSizes, kUnit));
    }
}
BENCHMARK(sweepHoles)->Unit(benchmark::kMillisecond);

constexpr int kReach = 250;

void plainPattern(benchmark::State& state) {
    const QuadrantRecord record;
    for (auto _ : state) {
        std::vector<double> pattern;
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
        benchmark::DoNotOptimize(pattern.data());
    }
    state.counters["events"] = static_cast<double>(record.events.size());
}
BENCHMARK(plainPattern)->Unit(benchmark::kMillisecond);

void averageAround(benchmark::State& state) {
    const QuadrantRecord record;
    for (auto _ : state) {
        benchmark::DoNotOptimize(vorlan::averageAround(record.events, record.a, kReach));
    }
}
BENCHMARK(averageAround)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
