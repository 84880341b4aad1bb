#pragma once

#include "analysis/Progress.h"
#include "model/SAdvProbe.h"

namespace vorlan {

/// Fills the probe's velocity moment block from the working velocities that count. With at most two such samples all
/// twelve moments are 0.
void computeProbeMoments(SAdvProbe& probe, Progress& progress = noProgress());

/// The moments alone, U, V, W, without touching the probe.
std::array<Moments, 3> probeMoments(const SAdvProbe& probe, Progress& progress = noProgress());

/// Moments of the samples that count in three columns, null for none.
std::array<Moments, 3> countedMoments(const SAdvProbe& probe, const std::array<const SArray*, 3>& columns);

}  // namespace vorlan
