#include "model/FrameSlot.h"

#include "model/DefaultFrames.h"

namespace vorlan {

std::optional<FrameSlot> frameSlotOf(Stage stage, Pane pane, PhysicalValue value, bool showTable) {
    const int group = static_cast<int>(stage);
    const int record = static_cast<int>(pane);
    const FrameSlot own{false, group, record};
    switch (stage) {
        case Stage::PreProcessing:
            if (pane == Pane::LeftTop && value == PhysicalValue::Stresses) {
                return FrameSlot{false, kStressFrameGroup, 0};
            }
            [[fallthrough]];
        case Stage::Histograms:
            return pane == Pane::RightBottom && showTable ? std::nullopt : std::optional(own);
        case Stage::Spectral:
            return pane == Pane::RightBottom ? std::nullopt : std::optional(own);
        case Stage::MeanVelocityVectors:
            return pane == Pane::LeftTop || pane == Pane::LeftBottom ? std::optional(FrameSlot{true, 0, record})
                                                                     : std::nullopt;
        case Stage::Stationarity:
        case Stage::Quadrants:
        case Stage::CrossSpectral:
            return own;
    }
    return std::nullopt;
}

}  // namespace vorlan
