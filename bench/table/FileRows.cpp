// Opening, saving and exporting against the plainest way of moving the same bytes.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sstream>

#include "export/VelocitiesExport.h"
#include "io/DelimitedTable.h"
#include "io/WorkspaceFile.h"
#include "table/Folder.h"
#include "table/Rows.h"

namespace bench {

namespace {

using namespace vorlan;

constexpr int kRounds = 7;
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

std::string millisecondsOf(double ours, double theirs) {
    char note[80];
    std::snprintf(note, sizeof note, "%.4g ms against %.4g ms", 1e3 * ours, 1e3 * theirs);
    return note;
}

void workspaces(Table& table) {
    const Folder folder;
    Workspace workspace;
    SMultiArray& columns = workspace.dataFiles.files.GrowTo(0).probes.GrowTo(0).workTables[0];
    columns.Reshape(kColumns, 0.001);
    for (int c = 0; c < kColumns; ++c) {
        fill(columns.ElementAt(c), kSamples, static_cast<std::uint32_t>(c + 1));
    }
    const std::filesystem::path path = folder.path() / "large.avp";
    saveWorkspace(workspace, path);

    const std::size_t size = std::filesystem::file_size(path);
    auto bytes = std::make_unique_for_overwrite<char[]>(size);
    {
        const File file(std::fopen(path.c_str(), "rb"));
        if (std::fread(bytes.get(), 1, size, file.get()) != size) {
            std::abort();
        }
    }
    Workspace loaded;
    std::unique_ptr<char[]> copy;
    const auto drop = [&] {
        loaded = Workspace();
        copy.reset();
    };
    // Both fill memory that nobody has touched yet.
    const auto opened = rounds(kRounds,
                               {[&] { loaded = openWorkspace(path); },
                                [&] {
                                    copy = std::make_unique_for_overwrite<char[]>(size);
                                    std::memcpy(copy.get(), bytes.get(), size);
                                }},
                               threadSeconds, drop);
    table.row("open 200 MiB, file in the cache", medianRatio(opened[0], opened[1]), "x a memcpy", Goal::AtMost, 2.5,
              millisecondsOf(median(opened[0]), median(opened[1])));

    const std::filesystem::path out = folder.path() / "out";
    const auto remove = [&] { std::filesystem::remove(out); };
    const auto saved = rounds(kRounds,
                              {[&] { saveWorkspace(workspace, out); },
                               [&] {
                                   const File file(std::fopen(out.c_str(), "wb"));
                                   keep(std::fwrite(bytes.get(), 1, size, file.get()));
                                   std::fflush(file.get());
                                   ::fsync(::fileno(file.get()));
                               }},
                              wallSeconds, remove);
    table.row("save 200 MiB, flushed to the disk", medianRatio(saved[0], saved[1]), "x one fwrite", Goal::AtMost, 1.3,
              millisecondsOf(median(saved[0]), median(saved[1])));
}

void texts(Table& table) {
    SAdvProbe probe;
    probe.samplingInterval = 0.04;
    probe.workTables[0].Reshape(3, 0.001);
    for (int c = 0; c < 3; ++c) {
        fill(probe.workTables[0].ElementAt(c), kTextRows, static_cast<std::uint32_t>(c + 1));
    }
    const std::string name = "bench";
    const SMultiArray& velocities = probe.workTables[0];
    const auto exports = rounds(
        3, {[&] {
                std::ostringstream stream;
                writeVelocities(stream, {name, 1, probe}, {false, true, Separator::Space});
            },
            [&] {
                char* text = nullptr;
                std::size_t length = 0;
                File memory(::open_memstream(&text, &length));
                for (int i = 0; i < kTextRows; ++i) {
                    std::fprintf(memory.get(), "%.2f %.2f %.2f %.2f\n", i * 0.04, velocities.GetAt(0).GetValue(i),
                                 velocities.GetAt(1).GetValue(i), velocities.GetAt(2).GetValue(i));
                }
                memory.reset();
                std::free(text);
            }});
    table.row("export 1,000,000 rows of velocities", medianRatio(exports[0], exports[1]), "x fprintf", Goal::None, 0.0,
              millisecondsOf(median(exports[0]), median(exports[1])));

    std::ostringstream stream;
    stream << "u,v,w\n";
    writeVelocities(stream, {name, 1, probe}, {false, false, Separator::Comma});
    const std::string text = stream.str();
    const auto tables = rounds(3, {[&] { keep(parseDelimitedTable(text, "bench.csv", {})); },
                                   [&] {
                                       const char* at = text.c_str() + 6;
                                       double sum = 0.0;
                                       for (int i = 0; i < 3 * kTextRows; ++i) {
                                           char* end = nullptr;
                                           sum += std::strtod(at, &end);
                                           at = end + 1;
                                       }
                                       keep(sum);
                                   }});
    table.row("read a table of 1,000,000 rows", medianRatio(tables[0], tables[1]), "x strtod", Goal::None, 0.0,
              millisecondsOf(median(tables[0]), median(tables[1])));
}

}  // namespace

void fileRows(Table& table) {
    table.section("Files");
    workspaces(table);
    texts(table);
}

}  // namespace bench
