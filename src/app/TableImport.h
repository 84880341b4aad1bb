#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "analysis/ImportedProbe.h"
#include "io/DelimitedTable.h"
#include "model/SAdvFile.h"

namespace vorlan {

/// Tables that become records, and how.
struct TableImport {
    std::vector<std::filesystem::path> tables;
    std::optional<std::string> name;  ///< of the data file; else that of its table, without folder and extension
    bool asProbes = false;            ///< all tables are probes 1, 2, ... of one data file
    TableOptions table;               ///< the velocities take the resolution of the settings
    ImportSettings settings;
};

/// Told of the named columns of a table that no probe takes.
using UnusedColumns = std::function<void(const std::filesystem::path& table, const std::vector<std::string>& names)>;

/// Reads the tables into data files. Throws FileError, TableError for a fault with a place in the table.
std::vector<SAdvFile> importTables(const TableImport& import, const UnusedColumns& tellUnused = {});

}  // namespace vorlan
