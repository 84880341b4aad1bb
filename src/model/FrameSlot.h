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

/// Gives a diagram what says how another one is drawn: scale, frame, ticks and marks, fonts and legend. Titles, limits,
/// digits and grid stay.
void takeStyle(FrameAttributesType& frame, const FrameAttributesType& other);

}  // namespace vorlan
