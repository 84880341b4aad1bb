// Runs the benchmarks and prints what is measured of every long loop, with its goal. Names of groups on the command
// line choose among them; the options of the library work as always.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string_view>
#include <vector>

#include "app/ProcessMemory.h"
#include "table/Reporter.h"
#include "table/Rows.h"

namespace {

using namespace bench;

struct Group {
    const char* name;
    void (*rows)(Table&);
};

constexpr Group kGroups[] = {
    {"kernels", kernelRows}, {"spectral", spectralRows}, {"quadrants", quadrantRows}, {"million", millionRows},
    {"events", eventRows},   {"files", fileRows},        {"paint", paintRows},        {"start", startRows},
    {"jobs", jobRows},       {"peers", peerRows},
};

void printHelp() {
    std::printf("bench_table [group...] [option...]\nGroups:");
    for (const Group& group : kGroups) {
        std::printf(" %s", group.name);
    }
    std::printf("\nOptions:\n");
    benchmark::PrintDefaultHelp();
}

}  // namespace

int main(int argc, char** argv) {
    vorlan::keepFreedMemory();
    // The machine is others' too: what is compared takes turns. The command line comes later and wins.
    char turns[] = "--benchmark_enable_random_interleaving=true";
    char repetitions[] = "--benchmark_repetitions=9";
    char time[] = "--benchmark_min_time=0.02";
    std::vector<char*> arguments{argv[0], turns, repetitions, time};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data(), printHelp);
    benchmark::SetDefaultTimeUnit(benchmark::kMillisecond);

    // The library has taken its options out.
    const std::vector<std::string_view> wanted(arguments.begin() + 1, arguments.begin() + count);
    for (const std::string_view name : wanted) {
        if (std::none_of(std::begin(kGroups), std::end(kGroups), [&](const Group& g) { return g.name == name; })) {
            std::fprintf(stderr, "There is no group or option \"%s\".\n", name.data());
            printHelp();
            return 2;
        }
    }
    Table table;
    for (const Group& group : kGroups) {
        if (wanted.empty() || std::find(wanted.begin(), wanted.end(), group.name) != wanted.end()) {
            group.rows(table);
        }
    }
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const bool right = table.print(reporter.tableOutput(), reporter.times());
    // Their records and folders go with them.
    benchmark::ClearRegisteredBenchmarks();
    benchmark::Shutdown();
    return right && !reporter.failed() ? 0 : 1;
}
