#pragma once

#include "model/SAdvProbe.h"

namespace vorlan {

/// Whether the stored record tells that its marks are those of the working samples. Marks that are shorter than the
/// sampled record were clipped, and nothing stored says whether a filter had shortened the velocities before: they are
/// trusted when the samples with a mark above 0 stand unchanged, side by side, in the sampled record.
bool marksAreOfWorkingSamples(const SAdvProbe& probe);

}  // namespace vorlan
