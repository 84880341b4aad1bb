// Moments of the bands that a record is cut into.
#include "analysis/StationaritySettings.h"
#include "stages/DiagramParts.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

/// One band array of a series, by pane.
constexpr std::array<SArray STimeSeries::*, kPaneCount> kBandArrays = {
    &STimeSeries::bandMeans, &STimeSeries::bandVariances, &STimeSeries::bandSkewness, &STimeSeries::bandKurtosis};
constexpr std::array<MarkerKind, 3> kMarkers = {MarkerKind::Circle, MarkerKind::Square, MarkerKind::Triangle};

/// Fixed bands stand at their middle, cumulative ones at their end.
SeriesX bandTimes(const SAdvProbe& probe, const STimeSeries& series) {
    const int bands = series.bandMeans.GetSize();
    const double length = bands > 0 ? series.values.GetSize() / bands * probe.samplingInterval : 0.0;
    const bool cumulative = probe.bandMode == static_cast<std::uint32_t>(BandMode::Cumulative);
    return {cumulative ? length : 0.5 * length, length, {}};
}

}  // namespace

PaneContent describeStationarity(const PaneRequest& request, const SAdvProbe* probe) {
    if (probe == nullptr) {
        return {};
    }
    Diagram diagram = newDiagram(request, probe);
    const auto bandArray = kBandArrays.at(static_cast<std::size_t>(request.pane));
    for (std::size_t c = 0; c < kMarkers.size(); ++c) {
        const STimeSeries& series = probe->Series(static_cast<int>(c));
        PlotSeries line =
            curve(plotValues(series.*bandArray), bandTimes(*probe, series), static_cast<int>(c), kVelocityLabels[c]);
        line.attributes.style = SeriesStyle::LineAndMarkers;
        line.attributes.markerKind = kMarkers[c];
        diagram.plot.series.push_back(std::move(line));
    }
    return diagramOrMessage(std::move(diagram));
}

}  // namespace vorlan
