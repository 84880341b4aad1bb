#include "stages/StagePanes.h"

namespace vorlan {

namespace {

using enum Quantity;
/// By stage number.
constexpr std::array<StageView, kStageCount> kViews = {{
    {describePreProcessing, {Record, Time, Time, Time}},
    {describeStationarity, {Time, Time, Time, Time}},
    {describeHistograms, {Nothing, Nothing, Nothing, Nothing}},
    {describeSpectra, {Correlation, Nothing, Lag, Nothing}},
    {describeVectors, {Nothing, Nothing, Nothing, Nothing}},
    {describeQuadrants, {Nothing, Time, Nothing, Time}},
    {describeCrossSpectra, {Correlation, Nothing, Nothing, Nothing}},
}};

}  // namespace

const StageView& stageView(Stage stage) {
    return kViews.at(static_cast<std::size_t>(stage));
}

}  // namespace vorlan
