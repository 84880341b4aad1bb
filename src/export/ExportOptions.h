#pragma once

#include <string>

#include "model/SAdvProbe.h"

namespace vorlan {

/// The character between the values of a row.
enum class Separator : int { Space = 0, Tab = 1, Comma = 2 };

/// What the dialog "Export | as an ASCII file" edits; everything is off when it opens.
struct ExportOptions {
    bool header = false;  ///< header lines
    bool time = false;    ///< leading time or lag columns
    Separator separator = Separator::Space;
    /// Step between hole sizes for probes whose quadrant analysis recorded none: the workspace's own.
    double holeIncrement = 0.2;
};

/// The probe that is exported and how a header names it.
struct ExportSource {
    const std::string& fileName;
    int position;  ///< of the probe in its file, from 1
    const SAdvProbe& probe;
};

}  // namespace vorlan
