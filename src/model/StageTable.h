#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "model/Stages.h"

#include "model/Index.h"

namespace vorlan {

/// What a pane of a stage holds.
enum class PaneKind : int {
    Diagram,
    RecordDiagram,   ///< a diagram that draws the stresses with attributes of their own
    Plan,            ///< a diagram over all files; its attributes are the set's
    TableOrDiagram,  ///< as the display switch says
    Table,
    Text,
};

/// What a stage is. A room that needs more of every stage keeps a table of its own in the same order.
struct StageRow {
    Stage stage;
    const char* text;              ///< of its tab; the spelling is the system's own
    const char* name;              ///< on the command line and in recipes
    std::optional<DoneMark> mark;  ///< none for the stage that every probe has
    const char* results;           ///< "this probe has no ... yet"
    std::array<PaneKind, kPaneCount> panes;
    bool forgottenOnRemoval;  ///< its results are of all samples: they go when bad samples are left out
    int pageRecord;           ///< index of its printed page

    PaneKind pane(Pane which) const { return panes[asSize(which)]; }
    /// The display switch that the stage opens with: its table, where it has one.
    bool opensWithTable() const { return pane(Pane::RightBottom) != PaneKind::Diagram; }
    /// True when its diagrams span all files and need no run of the stage.
    bool spansAllFiles() const { return pane(Pane::LeftTop) == PaneKind::Plan; }
};

/// All stages, by number.
const std::array<StageRow, kStageCount>& stageTable();

const StageRow& stageRow(Stage stage);
/// The row of a stored stage number, null for a number that is none of a stage.
const StageRow* stageNumbered(std::int64_t number);
const StageRow& stageOfMark(DoneMark mark);

}  // namespace vorlan
