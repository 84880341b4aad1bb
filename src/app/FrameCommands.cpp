// The document's commands on the attributes of diagrams.
#include <algorithm>
#include <utility>

#include "app/CVorl_ADVDoc.h"
#include "app/CommandReports.h"
#include "model/DefaultFrames.h"
#include "model/Errors.h"
#include "model/Index.h"

namespace vorlan {

namespace {

constexpr const char* kFrameCommand = "Plot Frame Options";

/// The stored record, created with those before it from the defaults.
template <class DefaultOf>
FrameAttributesType& storedFrame(SFrameAtrArray& frames, int record, DefaultOf defaultOf) {
    while (frames.GetSize() <= record) {
        frames.Add(defaultOf(frames.GetSize()));
    }
    return frames.ElementAt(record);
}

FrameAttributesType& storedPlanFrame(SFrameAtrArray& frames, int record) {
    FrameAttributesType& frame = storedFrame(frames, record, defaultPlanFrame);
    // A plain record stands for no choice.
    if (frame == FrameAttributesType{}) {
        frame = defaultPlanFrame(record);
    }
    return frame;
}

}  // namespace

void CVorl_ADVDoc::SetFrame(int group, int record, const FrameAttributesType& frame) {
    if (!HasProbe()) {
        throw InvalidArgument();
    }
    ChangeFrames(
        {{false, group, record}}, [&](const FrameSlot&, FrameAttributesType& stored) { stored = frame; }, false);
}

void CVorl_ADVDoc::SetPlanFrame(int record, const FrameAttributesType& frame) {
    ChangeFrames(
        {{true, 0, record}}, [&](const FrameSlot&, FrameAttributesType& stored) { stored = frame; }, false);
}

void CVorl_ADVDoc::ChangeFrames(const std::vector<FrameSlot>& slots, const FrameChange& change, bool allProbes) {
    FramesGiven given;
    const auto changes = [&](const FrameSlot& slot, FrameAttributesType& stored) {
        const FrameAttributesType before = stored;
        change(slot, stored);
        if (stored == before) {
            return false;
        }
        given.frames.push_back({slot, before, stored});
        return true;
    };
    WorkspacePatch patch;
    DoneCommands done;
    SFrameAtrArray plans = workspace_.dataFiles.frameAttributes;
    bool plansChange = false;
    for (const FrameSlot& slot : slots) {
        if (slot.inSet) {
            plansChange = changes(slot, storedPlanFrame(plans, slot.record)) || plansChange;
        }
    }
    if (plansChange) {
        patch.planFrames = std::move(plans);
        done.push_back(DoneOn(DoneCommand::kWholeWorkspace, DoneCommand::kWholeWorkspace, std::exchange(given, {})));
    }
    const auto changeProbe = [&](int file, int index) {
        SAdvProbe probe = workspace_.dataFiles.files.GetAt(file).probes.GetAt(index);
        bool probeChanges = false;
        for (const FrameSlot& slot : slots) {
            if (!slot.inSet) {
                const bool slotChanges =
                    changes(slot, storedFrame(probe.frameAttributes.at(asSize(slot.group)), slot.record,
                                              [&](int record) { return defaultFrame(slot.group, record); }));
                probeChanges = probeChanges || slotChanges;
            }
        }
        if (probeChanges) {
            done.push_back(DoneOn(file, index, std::exchange(given, {})));
            patch.probes.push_back({file, index, std::move(probe)});
        }
    };
    const bool ofProbes = std::any_of(slots.begin(), slots.end(), [](const FrameSlot& slot) { return !slot.inSet; });
    for (int file = 0; ofProbes && file < workspace_.dataFiles.files.GetSize(); ++file) {
        for (int index = 0; index < workspace_.dataFiles.files.GetAt(file).probes.GetSize(); ++index) {
            if (allProbes || (file == ActiveFile() && index == ActiveProbe())) {
                changeProbe(file, index);
            }
        }
    }
    if (patch.planFrames || !patch.probes.empty()) {
        Write(kFrameCommand, std::move(patch), std::move(done));
        Tell(Change::Content);
    }
    port_->report(frameReport(ActivePane()));
}

}  // namespace vorlan
