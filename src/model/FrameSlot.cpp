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

void takeStyle(FrameAttributesType& frame, const FrameAttributesType& other) {
    frame.scaleType = other.scaleType;
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
