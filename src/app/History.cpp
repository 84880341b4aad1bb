#include "app/History.h"

#include <utility>

namespace vorlan {

void History::MakeRoomFor(const WorkspacePatch& patch) {
    const auto make = [](auto& list, std::size_t size) {
        if (list.capacity() < size) {
            list.reserve(2 * size);
        }
    };
    std::vector<WorkspacePatch::ProbePart>& selected = steps_[done_].selections.probes;
    make(selected, selected.size() + patch.probes.size());
    make(steps_, done_ + 2);
}

void History::Record(const char* command, WorkspacePatch replaced, DoneCommands done) {
    ForgetTakenBackOpening();
    steps_.resize(done_ + 1);
    steps_.push_back({command, ++lastNumber_, std::move(replaced), std::move(done), {}});
    ++done_;
}

void History::RecordSelection(WorkspacePatch replaced, DoneCommands done) {
    ForgetTakenBackOpening();
    Step& step = steps_[done_];
    step.selections.Precede(std::move(replaced));
    step.done.insert(step.done.end(), done.begin(), done.end());
}

void History::ForgetTakenBackOpening() {
    if (std::exchange(openingTakenBack_, false)) {
        steps_.front().selections = {};
        steps_.front().done = {};
    }
}

const char* History::UndoName() const {
    if (done_ > 0) {
        return steps_[done_].command;
    }
    const bool selected = steps_.size() > 1 && !steps_.front().selections.IsEmpty();
    return selected && !openingTakenBack_ ? kSelection : nullptr;
}

const char* History::RedoName() const {
    if (openingTakenBack_) {
        return kSelection;
    }
    return done_ + 1 < steps_.size() ? steps_[done_ + 1].command : nullptr;
}

void History::Undo(Workspace& workspace) {
    Step& step = steps_[done_];
    step.selections.Exchange(workspace);
    step.replaced.Exchange(workspace);
    openingTakenBack_ = done_ == 0;
    done_ -= done_ == 0 ? 0 : 1;
}

void History::Redo(Workspace& workspace) {
    if (std::exchange(openingTakenBack_, false)) {
        steps_.front().selections.Exchange(workspace);
        return;
    }
    ++done_;
    steps_[done_].replaced.Exchange(workspace);
    steps_[done_].selections.Exchange(workspace);
}

}  // namespace vorlan
