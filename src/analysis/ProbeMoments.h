#pragma once

#include "model/SAdvProbe.h"

namespace vorlan {

/// Fills the probe's velocity moment block from the working velocities that count. With at most two such samples all
/// twelve moments are 0.
void computeProbeMoments(SAdvProbe& probe);

/// The moments alone, U, V, W, without touching the probe.
std::array<Moments, 3> probeMoments(const SAdvProbe& probe);

}  // namespace vorlan
