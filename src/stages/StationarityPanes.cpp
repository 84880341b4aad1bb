// Moments of the bands that a record is cut into.
#include "analysis/ResultAxes.h"
#include "model/Index.h"
#include "stages/DiagramParts.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

/// One band array of a series, by pane.
constexpr std::array<SArray STimeSeries::*, kPaneCount> kBandArrays = {
    &STimeSeries::bandMeans, &STimeSeries::bandVariances, &STimeSeries::bandSkewness, &STimeSeries::bandKurtosis};
constexpr std::array<MarkerKind, 3> kMarkers = {MarkerKind::Circle, MarkerKind::Square, MarkerKind::Triangle};

}  // namespace

PaneContent describeStationarity(const PaneRequest& request, const SAdvProbe* probe) {
    if (probe == nullptr) {
        return {};
    }
    Diagram diagram = newDiagram(request, probe);
    const auto bandArray = kBandArrays.at(asSize(request.pane));
    for (std::size_t c = 0; c < kMarkers.size(); ++c) {
        const STimeSeries& series = probe->Series(asInt(c));
        SeriesX times{0.0, 1.0, bandTimes(series, probe->bandMode, probe->samplingInterval)};
        PlotSeries line = curve(plotValues(series.*bandArray), std::move(times), asInt(c), kVelocityLabels[c]);
        line.attributes.style = SeriesStyle::LineAndMarkers;
        line.attributes.markerKind = kMarkers[c];
        diagram.plot.series.push_back(std::move(line));
    }
    return diagramOrMessage(std::move(diagram));
}

}  // namespace vorlan
