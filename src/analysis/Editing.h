#pragma once

#include "analysis/Progress.h"
#include "model/SAdvProbe.h"
#include "model/StageSettings.h"

namespace vorlan {

/// What one criterion found. A criterion that was off has tested nothing.
struct CriterionResult {
    int tested = 0;  ///< samples; velocity values for the velocity test
    int bad = 0;

    /// Share of the tested that was kept, 0..1; 1 when nothing was tested.
    double keptShare() const { return tested > 0 ? static_cast<double>(tested - bad) / tested : 1.0; }
};

struct EditingResult {
    CriterionResult correlation;
    CriterionResult signalToNoise;
    CriterionResult spikes;
    CriterionResult velocity;
};

/// The tests visit the working samples 1..N-2 in order. A bad sample always gets mark 0; while all samples are used it
/// is repaired by (x[i-1] + x[i+1]) / 2, the left neighbour as already processed, the right one as it was.
/// Score tables shorter than the record raise InvalidArgument.

/// Bad: average (c1 + c2 + c3) / 3, or any of the three scores, below threshold. Repairs all three components.
CriterionResult testScores(SAdvProbe& probe, std::size_t scoreTable, ScoreStatistic statistic, double threshold,
                           Progress& progress = noProgress());

/// Bad: 981 a < |e|, e = ((x[i] - x[i-1]) - (x[i+1] - x[i])) / dt per component, a in g. Repairs only when
/// 981 a < 1 / dt, whatever the samples.
CriterionResult filterSpikes(SAdvProbe& probe, double accelerationThreshold, Progress& progress = noProgress());

/// Bad: |x[i] - mean| > k sqrt(variance) with the probe's velocity moments as they stand. Counts and repairs each
/// component by itself.
CriterionResult testVelocities(SAdvProbe& probe, double k, Progress& progress = noProgress());

/// Treatment, the tests that are on (correlation, signal to noise, spikes, velocity), caption, frame title, stresses
/// and velocity moments. Removal ends the use of all samples, clears the done marks of stationarity, spectral,
/// cross-spectral and quadrant analysis and deletes their last tabs.
EditingResult editSeries(SAdvProbe& probe, const EditingSettings& settings, Progress& progress = noProgress());

}  // namespace vorlan
