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

/// Which velocity column a stress column takes its resolution from.
enum class StressResolution {
    SamePosition,  ///< u'v' takes U's, u'w' takes V's, v'w' takes W's: formed by pre-processing
    StreamwiseU,   ///< all three take U's: formed by an analysis that finds none
};

/// Forms the stress series anew from the working velocities: fluctuation means over all samples (marks do not count
/// here), the products u'v', u'w', v'w' of every sample in (cm/s)^2, stored truncated; then the stress moments over
/// the samples that count, the three stress series of the probe with values and moments, and the formed mark.
/// An empty record gives empty series and non-finite moments.
void formStresses(SAdvProbe& probe, StressResolution resolution = StressResolution::SamePosition,
                  Progress& progress = noProgress());

/// Variances of U, V, W (N - 1) and mean stresses (N) over all samples, into the probe's statistics.
void computeStressStatistics(SAdvProbe& probe, Progress& progress = noProgress());

/// Working velocities of one component less the probe's fluctuation mean, cm/s; empty for a record without columns.
/// InvalidArgument when the column is shorter than U.
std::vector<double> workingFluctuation(const SAdvProbe& probe, int component);

/// What every analysis of the stresses starts with: forms the stress series when the probe has none, all three in the
/// resolution of U, and computes the variances and mean stresses anew. InvalidArgument when the stress series differ
/// from the working record in length.
void prepareStresses(SAdvProbe& probe, Progress& progress);

}  // namespace vorlan
