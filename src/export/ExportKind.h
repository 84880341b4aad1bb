#pragma once

#include <array>
#include <iosfwd>
#include <optional>

#include "export/ExportOptions.h"
#include "model/Index.h"
#include "model/SAdvSet.h"
#include "model/Stages.h"

namespace vorlan {

/// The exports, in the order of their menu.
enum class ExportKind : int {
    Velocities,
    Stationarity,
    Histograms,
    Statistics,
    Spectral,
    Scales,
    Stresses,
    StressStatistics,
    CrossSpectral,
    Contributions,
    Times,
    Patterns,
};

inline constexpr int kExportKindCount = asInt(ExportKind::Patterns) + 1;

/// What the user is asked before an export is written.
enum class ExportDialog : int {
    Options,  ///< header, time values, separator
    Scope,    ///< the current probe or all files and probes
    None,
};

/// What an export is.
struct ExportKindInfo {
    ExportKind kind;
    const char* name;               ///< on the command line and in recipes
    const char* menuText;           ///< item of "&Export Data"
    const char* prompt;             ///< in the status bar while the item is highlighted
    const char* defaultFile;        ///< that the save dialog offers
    std::optional<DoneMark> needs;  ///< the stage whose results are written
    ExportDialog dialog;
    void (*write)(std::ostream& stream, const ExportSource& source, const ExportOptions& options);
    /// Every probe of every file, for those that ask for a scope.
    void (*writeAll)(std::ostream& stream, const SAdvSet& set) = nullptr;
};

/// All exports, indexed by kind.
const std::array<ExportKindInfo, kExportKindCount>& exportKinds();

const ExportKindInfo& exportKindInfo(ExportKind kind);

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
