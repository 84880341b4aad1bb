#pragma once

#include "analysis/Progress.h"
#include "model/SAdvProbe.h"

namespace vorlan {

inline constexpr const char* kClippingLimitsWrong = "The limits for clipping are wrong !";

/// Keeps the working samples i0 <= i < i1, i0 = trunc(tStart / dt), i1 = trunc(tEnd / dt), i1 limited to the record;
/// i0 not below i1 leaves an empty record. Every working table with a value per sample and the marks are cut alike,
/// the sampled tables stay. Stresses, moments and the title "Sampled Velocities (Zoom)" follow.
/// False, and nothing changed, when a limit is negative or no number.
bool clip(SAdvProbe& probe, double tStart, double tEnd, Progress& progress = noProgress());

/// The time that clip() takes for this sample: dt times its index, where rounding does not lose it the sample.
double clippingTime(int sample, double samplingInterval);

/// Zoom mode: the time axes of the first four diagrams take their limits from the data.
void enterZoomMode(SAdvProbe& probe);

/// The whole sampled record again: working tables, marks, stresses, moments, title "Sampled Velocities", time axes of
/// the first four diagrams from 0 s, no zoom mode. Caption, choice of samples, coordinate system and position stay.
void resetProbe(SAdvProbe& probe, Progress& progress = noProgress());

}  // namespace vorlan
