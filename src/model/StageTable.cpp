#include "model/StageTable.h"

#include <algorithm>

#include "model/Index.h"

namespace vorlan {

namespace {

using enum PaneKind;
using Panes = std::array<PaneKind, kPaneCount>;
constexpr Panes kRecordPanes = {RecordDiagram, Diagram, Diagram, TableOrDiagram};
constexpr Panes kFourDiagrams = {Diagram, Diagram, Diagram, Diagram};
constexpr Panes kOptionalTable = {Diagram, Diagram, Diagram, TableOrDiagram};
constexpr Panes kWithTable = {Diagram, Diagram, Diagram, Table};
constexpr Panes kPlans = {Plan, Plan, Text, Table};

// Every workspace holds the pages of the last three stages in reverse.
constexpr std::array<StageRow, kStageCount> kStages = {{
    {Stage::PreProcessing, "Pre-Processing", "pre-processing", std::nullopt, "", kRecordPanes, false, 0},
    {Stage::Stationarity, "Stationarity", "stationarity", DoneMark::Stationarity, "stationarity analysis",
     kFourDiagrams, true, 1},
    {Stage::Histograms, "Histograms", "histograms", DoneMark::Histograms, "histograms", kOptionalTable, false, 2},
    {Stage::Spectral, "Spectral Analysis", "spectral", DoneMark::Spectral, "spectral analysis", kWithTable, true, 3},
    {Stage::MeanVelocityVectors, "Mean Velocity Vectors", "vectors", DoneMark::MeanVelocity, "mean velocity vectors",
     kPlans, false, 6},
    {Stage::Quadrants, "Qudrants Analysis", "quadrants", DoneMark::Quadrants, "quadrants analysis", kFourDiagrams, true,
     5},
    {Stage::CrossSpectral, "Cross-Spectral Analysis", "cross-spectral", DoneMark::CrossSpectral,
     "cross-spectral analysis", kFourDiagrams, true, 4},
}};

constexpr bool inOrder() {
    for (std::size_t i = 0; i < kStages.size(); ++i) {
        if (kStages[i].stage != static_cast<Stage>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(inOrder());

}  // namespace

const std::array<StageRow, kStageCount>& stageTable() {
    return kStages;
}

const StageRow& stageRow(Stage stage) {
    return kStages.at(asSize(stage));
}

const StageRow* stageNumbered(std::int64_t number) {
    return number >= 0 && number < kStageCount ? &kStages[asSize(number)] : nullptr;
}

const StageRow& stageOfMark(DoneMark mark) {
    return *std::find_if(kStages.begin(), kStages.end(), [mark](const StageRow& row) { return row.mark == mark; });
}

}  // namespace vorlan
