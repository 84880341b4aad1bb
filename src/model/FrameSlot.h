#pragma once

#include <optional>
#include <vector>

#include "model/FrameAttributes.h"
#include "model/Stages.h"

namespace vorlan {

/// Where the frame attributes of a pane's diagram are kept.
struct FrameSlot {
    bool inSet = false;  ///< a record of the set of data files; else of the probe
    int group = 0;       ///< group 0..6 of the probe; 0 for the set
    int record = 0;

    friend bool operator==(const FrameSlot&, const FrameSlot&) = default;
};

/// The slot of the pane's diagram; empty when the pane shows a table or text.
std::optional<FrameSlot> frameSlotOf(Stage stage, Pane pane, PhysicalValue value, bool showTable);

/// The slots of every diagram of a stage, those of the stresses included.
std::vector<FrameSlot> frameSlotsOf(Stage stage);

/// The scale types that the diagram of a slot may be drawn with, the usual one first.
const std::vector<ScaleType>& scalesOf(const FrameSlot& slot);
bool allowsScale(const FrameSlot& slot, std::int32_t scaleType);

/// Gives the diagram of a slot what says how that of another one is drawn: frame, ticks and marks, fonts and legend.
/// The scale goes from a diagram that has a choice to one that may have it. Titles, limits, digits and grid stay.
void takeStyle(const FrameSlot& slot, FrameAttributesType& frame, const FrameSlot& otherSlot,
               const FrameAttributesType& other);

}  // namespace vorlan
