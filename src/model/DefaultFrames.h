#pragma once

#include "model/FrameAttributes.h"
#include "model/SAdvProbe.h"

namespace vorlan {

/// Group of a probe's frame attributes: its stage number; group 4 holds the diagrams of the stresses mode.
inline constexpr int kStressFrameGroup = 4;

/// Default attributes of one diagram. Group 0..6, record in pane order 0..3; combinations without a diagram give the
/// plain default.
FrameAttributesType defaultFrame(int group, int record);

/// Default attributes of the plans that span the whole set: record 0 the means, 1 minima and maxima.
FrameAttributesType defaultPlanFrame(int record);

/// Default attributes of the grid editor's preview in a coordinate plane (0 XY, 1 XZ, 2 YZ).
FrameAttributesType defaultPreviewFrame(int plane);

/// Number of diagrams that a group has.
int defaultFrameCount(int group);

/// Gives the probe the default diagrams of every group.
void createDefaultFrames(SAdvProbe& probe);

/// The stored record, or the default while the probe has none.
FrameAttributesType frameOrDefault(const SAdvProbe& probe, int group, int record);

/// Sets the title of the first diagram of the record's own stage, which is created when absent.
void setRecordTitle(SAdvProbe& probe, const std::string& title);

}  // namespace vorlan
