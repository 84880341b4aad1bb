#pragma once

#include <iosfwd>

#include "export/ExportKind.h"
#include "export/ExportOptions.h"
#include "model/SAdvSet.h"

namespace vorlan {

/// What is exported: a probe of a file by their indexes, and what the user chose.
struct ExportJob {
    const SAdvSet& set;
    int file = 0;
    int probe = 0;
    ExportOptions options;
    bool all = false;  ///< tables of all files and probes, for the kinds that ask for a scope
};

/// Writes one export. InvalidArgument when file or probe do not exist.
void writeExport(std::ostream& stream, ExportKind kind, const ExportJob& job);

}  // namespace vorlan
