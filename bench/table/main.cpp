// Prints what is measured of every long loop, with its goal. Names of groups on the command line choose among them.

#include <cstdio>
#include <cstring>
#include <functional>
#include <utility>

#include "app/ProcessMemory.h"
#include "table/Rows.h"

int main(int argc, char** argv) {
    using namespace bench;
    const std::pair<const char*, void (*)(Table&)> groups[] = {
        {"kernels", kernelRows}, {"spectral", spectralRows}, {"quadrants", quadrantRows}, {"million", millionRows},
        {"files", fileRows},     {"paint", paintRows},       {"start", startRows},        {"jobs", jobRows},
    };
    vorlan::keepFreedMemory();
    Table table;
    for (const auto& [name, rows] : groups) {
        bool wanted = argc < 2;
        for (int i = 1; i < argc; ++i) {
            wanted = wanted || std::strcmp(argv[i], name) == 0;
        }
        if (wanted) {
            rows(table);
        }
    }
    std::printf("\n%s\n", table.allMet() ? "Every goal is met." : "Some goals are missed.");
    return 0;
}
