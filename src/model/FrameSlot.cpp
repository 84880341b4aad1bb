#include "model/FrameSlot.h"

#include <algorithm>

#include "model/DefaultFrames.h"
#include "model/Index.h"
#include "model/StageTable.h"

namespace vorlan {

std::optional<FrameSlot> frameSlotOf(Stage stage, Pane pane, PhysicalValue value, bool showTable) {
    const int record = asInt(pane);
    const FrameSlot own{false, asInt(stage), record};
    switch (stageRow(stage).pane(pane)) {
        case PaneKind::Diagram:
            return own;
        case PaneKind::RecordDiagram:
            return value == PhysicalValue::Stresses ? FrameSlot{false, kStressFrameGroup, record} : own;
        case PaneKind::Plan:
            return FrameSlot{true, 0, record};
        case PaneKind::TableOrDiagram:
            return showTable ? std::nullopt : std::optional(own);
        case PaneKind::Table:
        case PaneKind::Text:
            break;
    }
    return std::nullopt;
}

std::vector<FrameSlot> frameSlotsOf(Stage stage) {
    std::vector<FrameSlot> slots;
    for (int pane = 0; pane < kPaneCount; ++pane) {
        for (const PhysicalValue value : {PhysicalValue::Velocities, PhysicalValue::Stresses}) {
            const std::optional<FrameSlot> slot = frameSlotOf(stage, static_cast<Pane>(pane), value, false);
            if (slot && std::find(slots.begin(), slots.end(), *slot) == slots.end()) {
                slots.push_back(*slot);
            }
        }
    }
    return slots;
}

const std::vector<ScaleType>& scalesOf(const FrameSlot& slot) {
    static const std::vector<ScaleType> linear = {ScaleType::Linear};
    static const std::vector<ScaleType> anyX = {ScaleType::Linear, ScaleType::LogXLinearY};
    static const std::vector<ScaleType> all = {ScaleType::Linear, ScaleType::Logarithmic, ScaleType::LinearXLogY,
                                               ScaleType::LogXLinearY};
    if (slot.inSet) {
        return linear;
    }
    // Spectra and structure functions, amplitudes of cross spectra.
    if ((slot.group == asInt(Stage::Spectral) && (slot.record == 1 || slot.record == 2)) ||
        (slot.group == asInt(Stage::CrossSpectral) && slot.record == 1)) {
        return all;
    }
    // Coherence and phase.
    return slot.group == asInt(Stage::CrossSpectral) && slot.record >= 2 ? anyX : linear;
}

bool allowsScale(const FrameSlot& slot, std::int32_t scaleType) {
    const std::vector<ScaleType>& scales = scalesOf(slot);
    return std::find(scales.begin(), scales.end(), static_cast<ScaleType>(scaleType)) != scales.end();
}

void takeStyle(const FrameSlot& slot, FrameAttributesType& frame, const FrameSlot& otherSlot,
               const FrameAttributesType& other) {
    if (scalesOf(otherSlot).size() > 1 && allowsScale(slot, other.scaleType)) {
        frame.scaleType = other.scaleType;
    }
    frame.frameStyle = other.frameStyle;
    frame.tickSize = other.tickSize;
    frame.markSize = other.markSize;
    frame.ticksPerMark = other.ticksPerMark;
    frame.tickOrientation = other.tickOrientation;
    frame.labelOffset = other.labelOffset;
    frame.plotTitleFont = other.plotTitleFont;
    frame.axisTitleFont = other.axisTitleFont;
    frame.labelFont = other.labelFont;
    frame.legendFont = other.legendFont;
    frame.legendPosition = other.legendPosition;
    frame.legendTitle = other.legendTitle;
}

}  // namespace vorlan
