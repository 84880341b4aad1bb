#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "model/Stages.h"

namespace vorlan {

class SAdvProbe;

/// The exports, in the order of their menu.
enum class ExportKind : int {
    Velocities = 0,
    Stationarity = 1,
    Histograms = 2,
    Statistics = 3,
    Spectral = 4,
    Scales = 5,
    Stresses = 6,
    StressStatistics = 7,
    CrossSpectral = 8,
    Contributions = 9,
    Times = 10,
    Patterns = 11,
};

inline constexpr int kExportKindCount = 12;

/// What the user is asked before an export is written.
enum class ExportDialog : int {
    Options,  ///< header, time values, separator
    Scope,    ///< the current probe or all files and probes
    None,
};

struct ExportKindInfo {
    ExportKind kind;
    const char* name;               ///< on the command line and in recipes
    const char* menuText;           ///< item of "&Export Data"
    const char* defaultFile;        ///< that the save dialog offers
    std::optional<DoneMark> needs;  ///< the stage whose results are written
    ExportDialog dialog;
};

/// All exports, indexed by kind.
const std::array<ExportKindInfo, kExportKindCount>& exportKinds();

const ExportKindInfo& exportKindInfo(ExportKind kind);

/// The export of a name, none for an unknown one.
std::optional<ExportKind> exportKindNamed(std::string_view name);

/// True when the probe has the results that the export writes.
bool hasResultsFor(ExportKind kind, const SAdvProbe& probe);

}  // namespace vorlan
