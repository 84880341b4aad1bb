#include "app/TableImport.h"

#include "model/Errors.h"

namespace vorlan {

namespace {

SAdvProbe readProbe(const std::filesystem::path& path, const TableImport& import, std::uint32_t number,
                    const UnusedColumns& tellUnused) {
    TableOptions options = import.table;
    options.velocityResolution = import.settings.resolution;
    const DelimitedTable table = readDelimitedTable(path, options);
    if (tellUnused && !table.unused.empty()) {
        tellUnused(path, table.unused);
    }
    ImportSettings settings = import.settings;
    settings.probeNumber = number;
    try {
        return importedProbe(table.record, settings);
    } catch (const InvalidArgument&) {
        const std::string reason = "a column holds no value";
        throw FileError(FileError::Kind::Format, path, path.string() + ": " + reason, reason);
    }
}

}  // namespace

std::vector<SAdvFile> importTables(const TableImport& import, const UnusedColumns& tellUnused) {
    std::vector<SAdvFile> files;
    for (const std::filesystem::path& path : import.tables) {
        if (files.empty() || !import.asProbes) {
            SAdvFile& file = files.emplace_back();
            file.fileName = import.name.value_or(path.stem().string());
            file.headerDoubleA = import.settings.samplingInterval;
        }
        SAdvFile& file = files.back();
        file.probes.Add(readProbe(path, import, static_cast<std::uint32_t>(file.probes.GetSize()) + 1, tellUnused));
        const SAdvProbe& first = file.probes.GetAt(0);
        file.headerDoubleB = first.WorkingSamples() * first.samplingInterval;
    }
    return files;
}

}  // namespace vorlan
