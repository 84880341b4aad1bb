#pragma once

#include <string>

#include "app/DoneCommand.h"
#include "recipes/RecipeKeys.h"

namespace vorlan {

/// A step by its name and the values of its keys.
struct NamedStep {
    std::string name;
    StepValues values;
};

// The step that does a command again with what it was given. Each stands beside the step's own function.

NamedStep stepOf(const ZoomGiven&);
NamedStep stepOf(const ResetGiven&);
NamedStep stepOf(const ClipGiven& clip);
NamedStep stepOf(const RotationSettings& settings);
NamedStep stepOf(const EditingSettings& settings);
NamedStep stepOf(const FilterSettings& settings);
NamedStep stepOf(const StationaritySettings& settings);
NamedStep stepOf(const HistogramSettings& settings);
NamedStep stepOf(const SpectralDialogValues& settings);
NamedStep stepOf(const CrossSpectraGiven&);
NamedStep stepOf(const QuadrantSettings& settings);
NamedStep stepOf(const MeanVelocitySettings& settings);
NamedStep stepOf(const VectorSettings& settings);
NamedStep stepOf(const DissipationReading& reading);
NamedStep stepOf(const ScalesReading& reading);
NamedStep stepOf(const PositionChange& position);
/// With the keys that the command has changed.
NamedStep stepOf(const FramesGiven::Frame& given);
NamedStep stepOf(const PageGiven& given);

}  // namespace vorlan
