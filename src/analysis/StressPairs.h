#pragma once

#include <array>
#include <vector>

#include "analysis/Progress.h"
#include "model/SAdvProbe.h"

namespace vorlan {

/// Velocity components (0..2) of a stress pair.
struct StressPair {
    int first;
    int second;
};

inline constexpr int kStressPairs = 3;
/// u'v', u'w', v'w'.
inline constexpr std::array<StressPair, kStressPairs> kStressPairComponents = {{{0, 1}, {0, 2}, {1, 2}}};

/// Working velocities of one component less the probe's fluctuation mean, cm/s; empty for a record without columns.
/// InvalidArgument when the column is shorter than U.
std::vector<double> workingFluctuation(const SAdvProbe& probe, int component);

/// What every analysis of the stresses starts with: forms the stress series when the probe has none, all three in the
/// resolution of U, and computes the variances and mean stresses anew. InvalidArgument when the stress series differ
/// from the working record in length.
void prepareStresses(SAdvProbe& probe, Progress& progress);

}  // namespace vorlan
