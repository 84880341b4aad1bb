#include "stages/StagePanes.h"

namespace vorlan {

namespace {

using enum Quantity;
/// By stage number.
constexpr std::array<StageView, kStageCount> kViews = {{
    {describePreProcessing, {Record, Time, Time, Time}},
    {describeStationarity, {Time, Time, Time, Time}},
    {describeHistograms, {Density, Density, Density, Density}},
    {describeSpectra, {Correlation, Spectrum, Lag, Nothing}},
    {describeVectors, {Nothing, Nothing, Nothing, Nothing}},
    {describeQuadrants, {ContributionRate, Time, TimeRate, Time}},
    {describeCrossSpectra, {Correlation, CrossSpectrum, Coherence, Phase}},
}};

}  // namespace

const StageView& stageView(Stage stage) {
    return kViews.at(static_cast<std::size_t>(stage));
}

}  // namespace vorlan
