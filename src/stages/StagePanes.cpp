#include "stages/StagePanes.h"

#include "model/Index.h"

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
    return kViews.at(asSize(stage));
}

}  // namespace vorlan
