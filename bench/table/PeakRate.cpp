#include "table/PeakRate.h"

#include <benchmark/benchmark.h>

#include <algorithm>

#include "Peak.h"
#include "table/Clock.h"

namespace bench {

namespace {

using vorlan::InstructionSet;

constexpr std::size_t kRounds = 60'000;

std::size_t runPeak(InstructionSet set, std::size_t rounds) {
    double out[3] = {0.999, 0.001, 0.0};
    const std::size_t operations = set == InstructionSet::Avx512 ? peakAvx512(rounds, out)
                                   : set == InstructionSet::Avx2 ? peakAvx2(rounds, out)
                                                                 : peakPlain(rounds, out);
    benchmark::DoNotOptimize(out);
    return operations;
}

}  // namespace

std::string registerPeak(const std::string& group, InstructionSet set) {
    const std::string name = group + "/peak/" + nameOf(set);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [set](benchmark::State& state) {
                                     // Now and then the chains fall out of step and lose a cycle a round: the best of
                                     // many short runs counts.
                                     for (auto _ : state) {
                                         double best = 1.0;
                                         for (int run = 0; run < 20; ++run) {
                                             const double start = threadSeconds();
                                             runPeak(set, kRounds);
                                             best = std::min(best, threadSeconds() - start);
                                         }
                                         state.SetIterationTime(best);
                                     }
                                 })
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(15);
    return name;
}

double peakRate(const Times& times, const std::string& benchmark, InstructionSet set) {
    return static_cast<double>(kRounds * runPeak(set, 1)) / times.best(benchmark);
}

}  // namespace bench
