#include "stages/PaneDescription.h"

#include <stdexcept>

#include "model/DefaultFrames.h"
#include "model/Errors.h"
#include "model/Index.h"
#include "stages/PaneTexts.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

bool isStage(Stage stage) {
    return asInt(stage) >= 0 && asInt(stage) < kStageCount;
}

}  // namespace

PaneContent describePane(const PaneRequest& request) {
    if (!isStage(request.stage)) {
        return {};
    }
    try {
        PaneContent content = stageView(request.stage)
                                  .describe(request, probeAt(request.workspace.dataFiles, request.file, request.probe));
        decodeTexts(content);
        return content;
    } catch (const std::logic_error&) {
        // A pane is described while it is painted, where nobody could tell the user.
        return PaneMessage{InvalidArgument().what()};
    }
}

const SAdvProbe* probeAt(const SAdvSet& set, int file, int probe) {
    if (file < 0 || file >= set.files.GetSize()) {
        return nullptr;
    }
    const SAdvProbesArray& probes = set.files.GetAt(file).probes;
    return probe >= 0 && probe < probes.GetSize() ? &probes.GetAt(probe) : nullptr;
}

FrameAttributesType frameInSlot(const SAdvSet& set, const SAdvProbe* probe, const FrameSlot& slot) {
    if (!slot.inSet) {
        return probe != nullptr ? frameOrDefault(*probe, slot.group, slot.record)
                                : defaultFrame(slot.group, slot.record);
    }
    // The set is made with one plain record, which stands for no choice of the user.
    const bool chosen = slot.record < set.frameAttributes.GetSize() &&
                        !(set.frameAttributes.GetAt(slot.record) == FrameAttributesType{});
    return chosen ? set.frameAttributes.GetAt(slot.record) : defaultPlanFrame(slot.record);
}

}  // namespace vorlan
