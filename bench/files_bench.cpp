// Speed of opening, saving and exporting, as ratios within one run to the plainest way of moving the same bytes.

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <memory>
#include <sstream>
#include <vector>

#include "export/VelocitiesExport.h"
#include "io/DelimitedTable.h"
#include "io/WorkspaceFile.h"

namespace {

using namespace vorlan;
using Clock = std::chrono::steady_clock;

constexpr int kRounds = 7;
constexpr int kColumns = 50;
constexpr int kSamples = 1 << 20;  // 4 MiB a column, 200 MiB in all
constexpr std::size_t kColumnBytes = sizeof(std::int32_t) * kSamples;
constexpr int kRows = 1'000'000;

/// Median wall-clock seconds of every piece of work. The pieces take turns, so that whatever happens on the machine
/// meets all alike; reset runs before each, untimed.
std::vector<double> medians(
    const std::vector<std::function<void()>>& works, const std::function<void()>& reset = [] {}) {
    std::vector<std::vector<double>> times(works.size());
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < works.size(); ++i) {
            reset();
            const auto start = Clock::now();
            works[i]();
            times[i].push_back(std::chrono::duration<double>(Clock::now() - start).count());
        }
    }
    std::vector<double> middle;
    for (std::vector<double>& all : times) {
        std::nth_element(all.begin(), all.begin() + kRounds / 2, all.end());
        middle.push_back(all[kRounds / 2]);
    }
    return middle;
}

void report(const char* what, double ours, const char* against, double theirs) {
    std::printf("%-28s %8.1f ms   %-44s %8.1f ms   ratio %.2f\n", what, 1e3 * ours, against, 1e3 * theirs,
                ours / theirs);
}

void fill(SArray& column, int samples, std::uint32_t seed) {
    column.ResizeForOverwrite(static_cast<std::size_t>(samples));
    for (std::int32_t& n : column.view()) {
        seed = seed * 1664525U + 1013904223U;
        n = static_cast<std::int32_t>(seed) >> 12;
    }
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

std::size_t readWhole(const std::filesystem::path& path, std::unique_ptr<char[]>& bytes) {
    const std::size_t size = std::filesystem::file_size(path);
    bytes = std::make_unique_for_overwrite<char[]>(size);
    const File file(std::fopen(path.c_str(), "rb"));
    return std::fread(bytes.get(), 1, size, file.get());
}

void workspaces(const std::filesystem::path& folder) {
    Workspace workspace;
    SMultiArray& table = workspace.dataFiles.files.GrowTo(0).probes.GrowTo(0).workTables[0];
    table.Reshape(kColumns, 0.001);
    for (int c = 0; c < kColumns; ++c) {
        fill(table.ElementAt(c), kSamples, static_cast<std::uint32_t>(c + 1));
    }
    const std::filesystem::path path = folder / "large.avp";
    saveWorkspace(workspace, path);

    Workspace loaded;
    std::unique_ptr<char[]> bytes;
    std::vector<std::unique_ptr<char[]>> columns;
    const auto drop = [&] {
        loaded = Workspace();
        bytes.reset();
        columns.clear();
    };
    const auto readAndCopy = [&] {
        const std::size_t size = readWhole(path, bytes);
        for (std::size_t at = 0; at < size; at += kColumnBytes) {
            const std::size_t length = std::min(size - at, kColumnBytes);
            columns.push_back(std::make_unique_for_overwrite<char[]>(length));
            std::memcpy(columns.back().get(), bytes.get() + at, length);
        }
    };
    const auto readColumns = [&] {
        const File file(std::fopen(path.c_str(), "rb"));
        for (int c = 0; c < kColumns; ++c) {
            columns.push_back(std::make_unique_for_overwrite<char[]>(kColumnBytes));
            if (std::fread(columns.back().get(), 1, kColumnBytes, file.get()) != kColumnBytes) {
                std::abort();
            }
        }
    };
    const std::vector<double> reads = medians(
        {[&] { loaded = openWorkspace(path); }, readColumns, [&] { readWhole(path, bytes); }, readAndCopy}, drop);
    report("open 200 MiB", reads[0], "fread column by column", reads[1]);
    report("open 200 MiB", reads[0], "fread into one buffer", reads[2]);
    report("open 200 MiB", reads[0], "fread into one buffer + memcpy into columns", reads[3]);

    const std::size_t size = readWhole(path, bytes);
    const std::filesystem::path out = folder / "out";
    const auto remove = [&] { std::filesystem::remove(out); };
    const std::vector<double> writes = medians({[&] { saveWorkspace(workspace, out); },
                                                [&] {
                                                    const File file(std::fopen(out.c_str(), "wb"));
                                                    std::fwrite(bytes.get(), 1, size, file.get());
                                                    std::fflush(file.get());
                                                    ::fsync(::fileno(file.get()));
                                                }},
                                               remove);
    report("save 200 MiB", writes[0], "one fwrite + fsync", writes[1]);
}

void texts() {
    SAdvProbe probe;
    probe.samplingInterval = 0.04;
    probe.workTables[0].Reshape(3, 0.001);
    for (int c = 0; c < 3; ++c) {
        fill(probe.workTables[0].ElementAt(c), kRows, static_cast<std::uint32_t>(c + 1));
    }
    const std::string name = "bench";
    const SMultiArray& table = probe.workTables[0];
    const auto exporting = [&] {
        std::ostringstream stream;
        writeVelocities(stream, {name, 1, probe}, {false, true, Separator::Space});
    };
    const auto printing = [&] {
        char* text = nullptr;
        std::size_t length = 0;
        File memory(::open_memstream(&text, &length));
        for (int i = 0; i < kRows; ++i) {
            std::fprintf(memory.get(), "%.2f %.2f %.2f %.2f\n", i * 0.04, table.GetAt(0).GetValue(i),
                         table.GetAt(1).GetValue(i), table.GetAt(2).GetValue(i));
        }
        memory.reset();
        std::free(text);
    };
    const std::vector<double> exports = medians({exporting, printing});
    report("export 10^6 velocity rows", exports[0], "one fprintf a row", exports[1]);

    std::ostringstream stream;
    stream << "u,v,w\n";
    writeVelocities(stream, {name, 1, probe}, {false, false, Separator::Comma});
    const std::string text = stream.str();
    double sum = 0.0;
    const auto scanning = [&] {
        const char* at = text.c_str() + 6;
        for (int i = 0; i < 3 * kRows; ++i) {
            char* end = nullptr;
            sum += std::strtod(at, &end);
            at = end + 1;
        }
    };
    const std::vector<double> tables = medians({[&] { parseDelimitedTable(text, "bench.csv", {}); }, scanning});
    report("read 10^6 table rows", tables[0], "one strtod a value", tables[1]);
    std::printf("(sum of the values read: %g)\n", sum);
}

}  // namespace

int main(int argc, char** argv) {
    const std::filesystem::path folder =
        std::filesystem::path(argc > 1 ? argv[1] : std::filesystem::temp_directory_path().c_str()) /
        ("vorlan-bench-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    workspaces(folder);
    texts();
    std::filesystem::remove_all(folder);
    return 0;
}
