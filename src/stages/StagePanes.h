#pragma once

#include "stages/PaneDescription.h"

namespace vorlan {

/// What one stage shows: the request (its stage is the describer's own) and the probe that it names, null for none.
using StageDescriber = PaneContent (*)(const PaneRequest& request, const SAdvProbe* probe);

PaneContent describePreProcessing(const PaneRequest& request, const SAdvProbe* probe);
PaneContent describeStationarity(const PaneRequest& request, const SAdvProbe* probe);
PaneContent describeHistograms(const PaneRequest& request, const SAdvProbe* probe);
PaneContent describeSpectra(const PaneRequest& request, const SAdvProbe* probe);
PaneContent describeVectors(const PaneRequest& request, const SAdvProbe* probe);
PaneContent describeQuadrants(const PaneRequest& request, const SAdvProbe* probe);
PaneContent describeCrossSpectra(const PaneRequest& request, const SAdvProbe* probe);

}  // namespace vorlan
