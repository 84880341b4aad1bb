#pragma once

#include <string>
#include <vector>

#include "analysis/Progress.h"
#include "model/SAdvProbe.h"
#include "model/WorkspaceSettings.h"

namespace vorlan {

/// One stage that is repeated when the working series of a probe has changed.
struct StageRepeat {
    DoneMark mark;
    /// Repeats the stage on the probe with the document's parameters (or those that the probe recorded). Returns why
    /// it cannot be repeated, empty when it was; the results of a stage that cannot be repeated stay as they were.
    std::string (*repeat)(SAdvProbe& probe, const WorkspaceSettings& settings, Progress& progress);
};

/// The stages in the order in which they are repeated. A stage joins the change rule by standing in this list.
const std::vector<StageRepeat>& recomputeChain();

/// Repeats every stage whose mark is set and returns the reasons of those that could not be, each reason once.
std::vector<std::string> recomputeAll(SAdvProbe& probe, const WorkspaceSettings& settings, Progress& progress);

}  // namespace vorlan
