#pragma once

#include <cstdint>
#include <vector>

#include "model/SAdvProbe.h"

namespace vorlan {

// Where the values of stored results stand on their axes: diagrams and exports show the same.

/// Times of the bands of a series, s, for bands of L = N / n samples (integer division): (k + 0.5) L dt for fixed
/// bands (mode 0), (k + 1) L dt for cumulative ones.
std::vector<double> bandTimes(const STimeSeries& series, std::uint32_t bandMode, double samplingInterval);

/// Centres of the grades of a series' histogram: min + (k + 0.5) (max - min) / n; not numbers when the series has
/// become empty.
std::vector<double> gradeCentres(const STimeSeries& series);

/// Step between the hole sizes of the probe's quadrant analysis; otherwise when it recorded none that is usable.
double holeIncrementOf(const SAdvProbe& probe, double otherwise);

/// Lag of element i of an event pattern of size elements, s: the middle one stands at the event.
double patternLag(int i, int size, double samplingInterval);

}  // namespace vorlan
