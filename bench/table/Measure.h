#pragma once

#include <benchmark/benchmark.h>

#include <exception>
#include <string>

#include "table/Clock.h"
#include "table/Lazy.h"

namespace bench {

using Registered = benchmark::internal::Benchmark*;

/// Registers run(state). What it throws fails this benchmark: the others still run, and folders are cleared.
template <class Run>
Registered measure(const std::string& name, Run run) {
    return benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        try {
            run(state);
        } catch (const std::exception& error) {
            state.SkipWithError(error.what());
        }
    });
}

/// Registers work(data); what data holds is made before the timing.
template <class T, class Work>
Registered measure(const std::string& name, const Lazy<T>& data, Work work) {
    return measure(name, [=](benchmark::State& state) {
        T& made = data();
        for (auto _ : state) {
            work(made);
        }
    });
}

/// The same with an untimed reset(data) before every work(data).
template <class T, class Reset, class Work>
Registered measureAfter(const std::string& name, const Lazy<T>& data, Reset reset, Work work,
                        Clock clock = threadSeconds) {
    return measure(name,
                   [=](benchmark::State& state) {
                       T& made = data();
                       for (auto _ : state) {
                           reset(made);
                           const double start = clock();
                           work(made);
                           state.SetIterationTime(clock() - start);
                       }
                   })
        ->UseManualTime();
}

}  // namespace bench
