#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "app/DoneCommand.h"
#include "app/WorkspacePatch.h"

namespace vorlan {

/// What was done to a workspace since it was made or opened, to be taken back and done again without a limit. A step
/// holds what its command replaced, and columns are shared: it costs what the command changed.
///
/// Selections are no steps of their own: they go back with the command in front of them. Those before the first command
/// make a step, kSelection, once that command is taken back: the view stays where the command was given, and the
/// workspace is the opened one when everything is taken back.
class History {
  public:
    static constexpr const char* kSelection = "Selection";

    struct Step {
        const char* command = nullptr;
        std::uint64_t number = 0;
        WorkspacePatch replaced = {};
        DoneCommands done = {};  ///< what it was, as far as it can be repeated elsewhere, and what only selected
        WorkspacePatch selections = {};  ///< made between this command and the next
    };

    /// Makes room for what is recorded next, so that it is not refused when the workspace has changed already.
    void MakeRoomFor(const WorkspacePatch& patch);
    /// A command was done. What was taken back before it cannot be done again.
    void Record(const char* command, WorkspacePatch replaced, DoneCommands done);
    /// Something was selected, by a command that changed nothing else when there is one in done.
    void RecordSelection(WorkspacePatch replaced, DoneCommands done);

    /// Name of the command that Undo() takes back or Redo() does again; null when there is none.
    const char* UndoName() const;
    const char* RedoName() const;
    /// Need a name.
    void Undo(Workspace& workspace);
    void Redo(Workspace& workspace);

    /// The steps that are not taken back, oldest first.
    std::span<const Step> Done() const {
        const std::size_t first = openingTakenBack_ ? 1 : 0;
        return {steps_.data() + first, done_ + 1 - first};
    }

    /// Differs between any two states that a command lies between.
    std::uint64_t State() const { return steps_[done_].number; }

  private:
    /// What happens after everything was taken back begins anew.
    void ForgetTakenBackOpening();

    std::vector<Step> steps_ = {Step{}};  ///< in front stands what was opened
    std::size_t done_ = 0;                ///< the last step that is not taken back
    std::uint64_t lastNumber_ = 0;
    bool openingTakenBack_ = false;  ///< the selections before the first command are taken back, too
};

}  // namespace vorlan
