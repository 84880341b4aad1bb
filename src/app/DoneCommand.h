#pragma once

#include <array>
#include <optional>
#include <variant>
#include <vector>

#include "analysis/DissipationRate.h"
#include "analysis/RotationSettings.h"
#include "analysis/SpectralSettings.h"
#include "analysis/TurbulenceScales.h"
#include "app/CommandValues.h"
#include "model/FrameSlot.h"
#include "model/PageAttributes.h"
#include "model/Stages.h"
#include "model/WorkspaceSettings.h"

namespace vorlan {

// What a command was given, where it takes no value of its own type.

struct ZoomGiven {};
struct ResetGiven {};
struct ClipGiven {
    double from;  ///< s
    double to;
};
struct CrossSpectraGiven {};
/// Diagrams with their attributes in front of the command and after it.
struct FramesGiven {
    struct Frame {
        FrameSlot slot;
        FrameAttributesType before;
        FrameAttributesType after;
    };
    std::vector<Frame> frames;
};
struct PageGiven {
    Stage stage;
    PageAtrType before;
    PageAtrType after;
};

using GivenCommand = std::variant<ZoomGiven, ResetGiven, ClipGiven, RotationSettings, EditingSettings, FilterSettings,
                                  StationaritySettings, HistogramSettings, SpectralDialogValues, CrossSpectraGiven,
                                  QuadrantSettings, VectorSettings, DissipationReading, ScalesReading,
                                  MeanVelocitySettings, PositionChange, FramesGiven, PageGiven>;

/// A command that was done, with what it needs to be done again elsewhere.
struct DoneCommand {
    static constexpr int kWholeWorkspace = -1;

    int file = kWholeWorkspace;  ///< index of the data file, as it was then
    int probe = kWholeWorkspace;
    GivenCommand given;
    /// The answer to the question about repeating done stages; nothing where it was not asked.
    std::optional<bool> repeated;
    /// The parameters in front of the command, which repeated stages take, and the stages that were done then.
    WorkspaceSettings settings;
    std::array<std::uint32_t, 6> stageDone{};
};

using DoneCommands = std::vector<DoneCommand>;

/// The commands since a probe came into the workspace, oldest first, without what was taken back.
struct ProbeCommands {
    int file = -1;  ///< indexes of the probe when it came
    int probe = -1;
    WorkspaceSettings settings;  ///< as they were then, but for what is selected
    std::vector<const DoneCommand*> commands;
};

}  // namespace vorlan
