#include "stages/GridPreview.h"

#include "model/Index.h"
#include "model/Text.h"
#include "stages/PlanParts.h"

namespace vorlan {

Diagram describeGrid(const Workspace& workspace, int planeCode, const FrameAttributesType& frame) {
    const Plane plane = planeOf(planeCode);
    Diagram diagram;
    diagram.frame = frame;
    diagram.planRoom = kPlanRoom;
    for (const SBndFile& boundary : workspace.boundaries) {
        PlotSeries nodes = boundaryPoints(boundary, plane);
        nodes.attributes.style = SeriesStyle::LineAndMarkers;
        nodes.attributes.markerKind = MarkerKind::Square;
        nodes.attributes.legendText = diagram.plot.series.empty() ? "boundaries" : "";
        diagram.plot.series.push_back(std::move(nodes));
    }
    PlotSeries volumes;
    volumes.attributes.style = SeriesStyle::Markers;
    volumes.attributes.colour = seriesColour(0);
    volumes.attributes.legendText = "sampling volumes";
    forEachPlace(workspace.dataFiles,
                 [&](const SAdvProbe& probe, const std::array<double, 3>& place, const std::string& detail) {
                     const double x = place[plane.first];
                     const double y = place[plane.second];
                     volumes.x.values.push_back(x);
                     volumes.y.push_back(y);
                     diagram.labels.push_back({x, y, formatted("Probe %d", asInt(probe.probeNumber)), detail});
                 });
    diagram.plot.series.push_back(std::move(volumes));
    return diagram;
}

}  // namespace vorlan
