#pragma once

#include <array>

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

/// What the cursor reads off a diagram.
enum class Quantity {
    Record,  ///< time and the physical value
    Correlation,
    Time,
    Lag,
    Spectrum,
    CrossSpectrum,
    Coherence,
    Phase,
    Density,  ///< of a distribution
    ContributionRate,
    TimeRate,
    Nothing,
};

/// How a stage is shown: who describes it, and what its panes are read for, in their order.
struct StageView {
    StageDescriber describe;
    std::array<Quantity, kPaneCount> quantities;
};

const StageView& stageView(Stage stage);

}  // namespace vorlan
