#include "model/FrameSlot.h"

#include "model/DefaultFrames.h"
#include "model/StageTable.h"

namespace vorlan {

std::optional<FrameSlot> frameSlotOf(Stage stage, Pane pane, PhysicalValue value, bool showTable) {
    const int record = static_cast<int>(pane);
    const FrameSlot own{false, static_cast<int>(stage), record};
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

}  // namespace vorlan
