#pragma once

#include "analysis/Progress.h"
#include "model/SAdvProbe.h"

namespace vorlan {

/// Which velocity column lends its resolution to a stress column.
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

}  // namespace vorlan
