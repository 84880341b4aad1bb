// Opening, saving and exporting against the plainest way of moving the same bytes.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "export/Writers.h"
#include "io/DelimitedTable.h"
#include "io/WorkspaceFile.h"
#include "table/Folder.h"
#include "table/Measure.h"
#include "table/Rows.h"

namespace bench {

namespace {

using namespace vorlan;

constexpr int kColumns = 50;
constexpr int kSamples = 1 << 20;  // 4 MiB a column, 200 MiB in all
constexpr int kTextRows = 1'000'000;

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

struct LargeFile {
    Folder folder;
    std::filesystem::path path = folder.path() / "large.avp";
    std::filesystem::path out = folder.path() / "out";
    Workspace workspace;
    Workspace loaded;
    std::size_t size = 0;
    std::unique_ptr<char[]> bytes;
    /// Touched once: the process keeps the memory that it opens files into, too.
    std::unique_ptr<char[]> copy;

    LargeFile() {
        SMultiArray& columns = workspace.dataFiles.files.GrowTo(0).probes.GrowTo(0).workTables[0];
        columns.Reshape(kColumns, 0.001);
        for (int c = 0; c < kColumns; ++c) {
            fill(columns.ElementAt(c), kSamples, static_cast<std::uint32_t>(c + 1));
        }
        saveWorkspace(workspace, path);
        size = std::filesystem::file_size(path);
        bytes = std::make_unique_for_overwrite<char[]>(size);
        copy = std::make_unique<char[]>(size);
        const File file(std::fopen(path.c_str(), "rb"));
        if (std::fread(bytes.get(), 1, size, file.get()) != size) {
            throw std::runtime_error("The file of 200 MiB cannot be read back");
        }
    }
};

void workspaces(Table& table) {
    const Lazy<LargeFile> large;
    measureAfter(
        "files/open", large, [](LargeFile& l) { l.loaded = Workspace(); },
        [](LargeFile& l) { l.loaded = openWorkspace(l.path); });
    measure("files/open/memcpy", large, [](LargeFile& l) {
        std::memcpy(l.copy.get(), l.bytes.get(), l.size);
        benchmark::ClobberMemory();
    });
    table.ratio("open 200 MiB, file in the cache", "files/open", "files/open/memcpy", "x a memcpy", atMost(2.5));

    const auto remove = [](LargeFile& l) { std::filesystem::remove(l.out); };
    measureAfter(
        "files/save", large, remove, [](LargeFile& l) { saveWorkspace(l.workspace, l.out); }, wallSeconds);
    measureAfter(
        "files/save/fwrite", large, remove,
        [](LargeFile& l) {
            const File file(std::fopen(l.out.c_str(), "wb"));
            benchmark::DoNotOptimize(std::fwrite(l.bytes.get(), 1, l.size, file.get()));
            std::fflush(file.get());
            ::fsync(::fileno(file.get()));
        },
        wallSeconds);
    table.ratio("save 200 MiB, flushed to the disk", "files/save", "files/save/fwrite", "x one fwrite", atMost(1.3));
}

struct Text {
    SAdvProbe probe;
    std::string table;

    Text() {
        probe.samplingInterval = 0.04;
        probe.workTables[0].Reshape(3, 0.001);
        for (int c = 0; c < 3; ++c) {
            fill(probe.workTables[0].ElementAt(c), kTextRows, static_cast<std::uint32_t>(c + 1));
        }
        std::ostringstream stream;
        stream << kHeading;
        writeVelocities(stream, {"bench", 1, probe}, {false, false, Separator::Comma});
        table = stream.str();
    }

    static constexpr std::string_view kHeading = "u,v,w\n";
};

void printRows(const SMultiArray& velocities) {
    char* text = nullptr;
    std::size_t length = 0;
    File memory(::open_memstream(&text, &length));
    for (int i = 0; i < kTextRows; ++i) {
        std::fprintf(memory.get(), "%.2f %.2f %.2f %.2f\n", i * 0.04, velocities.GetAt(0).GetValue(i),
                     velocities.GetAt(1).GetValue(i), velocities.GetAt(2).GetValue(i));
    }
    memory.reset();
    std::free(text);
}

double sumOfValues(const char* at) {
    double sum = 0.0;
    for (int i = 0; i < 3 * kTextRows; ++i) {
        char* end = nullptr;
        sum += std::strtod(at, &end);
        at = end + 1;
    }
    return sum;
}

void texts(Table& table) {
    const Lazy<Text> text;
    measure("files/export", text, [](const Text& t) {
        std::ostringstream stream;
        writeVelocities(stream, {"bench", 1, t.probe}, {false, true, Separator::Space});
    });
    measure("files/export/fprintf", text, [](const Text& t) { printRows(t.probe.workTables[0]); });
    table.ratio("export 1,000,000 rows of velocities", "files/export", "files/export/fprintf", "x fprintf");
    measure("files/read", text,
            [](const Text& t) { benchmark::DoNotOptimize(parseDelimitedTable(t.table, "bench.csv", {})); });
    measure("files/read/strtod", text,
            [](const Text& t) { benchmark::DoNotOptimize(sumOfValues(t.table.c_str() + Text::kHeading.size())); });
    table.ratio("read a table of 1,000,000 rows", "files/read", "files/read/strtod", "x strtod");
}

}  // namespace

void fileRows(Table& table) {
    table.section("Files");
    workspaces(table);
    texts(table);
}

}  // namespace bench
