#include "table/PeakRate.h"

#include "Peak.h"
#include "table/Measure.h"

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
    const auto run = [set](benchmark::State& state) {
        for (auto _ : state) {
            runPeak(set, kRounds);
        }
    };
    // Now and then the chains fall out of step and lose a cycle a round: the best of many short runs counts.
    measure(name, run)->Iterations(1)->Repetitions(300);
    return name;
}

double peakRate(const Times& times, const std::string& benchmark, InstructionSet set) {
    return static_cast<double>(kRounds * runPeak(set, 1)) / times.best(benchmark);
}

}  // namespace bench
