#pragma once

#include <string>

#include "analysis/Progress.h"
#include "model/SAdvProbe.h"
#include "model/StageSettings.h"

namespace vorlan {

inline constexpr const char* kQuadrantStatus = "Conditional Quadrants and Averaging calculations";

/// Conditional quadrant analysis of one stress series s with mean m, r = s / m, over all working samples.
///
/// Hole sizes H = h * increment for h = 0..trunc(maximum / increment)-1 (none for a negative increment): every sample
/// with |r| > H belongs to its quadrant of the fluctuation plane, all others and those on an axis to the hole. The
/// contribution set holds, at 1e-5, the share of each quadrant 1..4 and of the hole in the sum of r (r enters the sum
/// in whole units of 1e-5, and the sums wrap at 2^32), the time set the share of the samples.
///
/// Events: for m < 0 the samples of quadrant 2 with r above the ejection threshold and those of quadrant 4 with r
/// above the sweep threshold; for m > 0 those of quadrants 1 and 3; none for m = 0. The pattern sets hold, at 1e-4,
/// the mean of each component's fluctuation at lag (i - L) dt, i = 0..2L, L = trunc(maximum lag / dt), around the
/// events that have such a neighbour, in standard deviations; 0 where no event has one.
///
/// The stresses are formed when the probe has none; variances and mean stresses are computed anew. Records stress
/// type, increment, maximum, maximum lag and m, titles the pattern diagrams by what the events are, and sets the
/// stage's mark. A record without samples gets empty contribution and time sets.
///
/// Returns why it is refused, when the settings ask for more hole sizes or lags than StageLimits.h allows (an increment
/// or a sampling interval of 0 included); empty when it was done. InvalidArgument when the record's columns differ in
/// length or for an unknown stress type.
std::string analyseQuadrants(SAdvProbe& probe, const QuadrantSettings& settings, Progress& progress);

inline constexpr const char* kContributionsExceed =
    "Contribution sums exceed what can be stored: the rates are not reliable.";

/// Whether a sum behind the probe's contribution set has left the 32 bits in which it is kept: its shares are then
/// those of a wrapped sum. Judged by the record as it is now; false while there is no such set, or no record to it.
bool contributionSumsExceed(const SAdvProbe& probe);

}  // namespace vorlan
