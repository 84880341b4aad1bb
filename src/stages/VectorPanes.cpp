// Plans of the mean and of the extreme velocities over the measuring grid and the flow boundaries.
#include <algorithm>
#include <limits>

#include "model/Index.h"
#include "model/ProbeInformation.h"
#include "model/Text.h"
#include "stages/PlanParts.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t kRed = 255;
constexpr std::int32_t kBlue = 65536 * 255;
constexpr std::array<const char*, 3> kAxisTitles = {"X, m", "Y, m", "Z, m"};
// What a damaged workspace holds must not carry an arrow beyond what can be painted.
constexpr int kLongestScale = 10000;
constexpr int kDashed = 1;

/// All boundaries as one line, broken between them.
PlotSeries boundaryLine(const SBndSet& boundaries, Plane plane) {
    PlotSeries line;
    for (const SBndFile& boundary : boundaries) {
        const PlotSeries points = boundaryPoints(boundary, plane);
        line.attributes.colour = points.attributes.colour;
        if (!line.y.empty()) {
            line.x.values.push_back(0.0);
            line.y.push_back(kNaN);
        }
        line.x.values.insert(line.x.values.end(), points.x.values.begin(), points.x.values.end());
        line.y.insert(line.y.end(), points.y.begin(), points.y.end());
    }
    line.attributes.legendText = "flow boundaries";
    line.attributes.penWidth = 2;
    return line;
}

/// Arrows without points yet: length pixels long for a vector of speed cm/s; without length for a speed that gives no
/// scale.
PlotSeries arrows(std::int32_t colour, double length, double speed, const std::string& legend) {
    PlotSeries series;
    series.attributes.style = SeriesStyle::Arrows;
    series.attributes.colour = colour;
    series.attributes.arrowScale = speed > 0.0 ? length / speed : 0.0;
    series.attributes.legendText = legend;
    series.legendArrow = speed;
    return series;
}

void addArrow(PlotSeries& series, double x, double y, const std::array<double, 3>& velocity, Plane plane) {
    series.x.values.push_back(x);
    series.y.push_back(y);
    series.vx.push_back(velocity[plane.first]);
    series.vy.push_back(velocity[plane.second]);
}

/// The plan without arrows.
Diagram newPlan(const PaneRequest& request, Plane plane) {
    Diagram diagram = newDiagram(request, nullptr);
    diagram.planRoom = kPlanRoom;
    const auto nameAxis = [](std::string& title, std::size_t axis) {
        if (title.empty()) {
            title = kAxisTitles[axis];
        }
    };
    nameAxis(diagram.frame.xTitle, plane.first);
    nameAxis(diagram.frame.yTitle, plane.second);
    PlotSeries boundaries = boundaryLine(request.workspace.boundaries, plane);
    if (!boundaries.y.empty()) {
        diagram.plot.series.push_back(std::move(boundaries));
    }
    return diagram;
}

/// Calls action with every probe and its place in the plan, and marks and names the place.
template <class Action>
void forEachProbe(const SAdvSet& set, Plane plane, Diagram& diagram, Action action) {
    PlotSeries places;
    places.attributes.style = SeriesStyle::Markers;
    places.attributes.colour = seriesColour(0);
    forEachPlace(set, [&](const SAdvProbe& probe, const std::array<double, 3>& place, const std::string& detail) {
        const double x = place[plane.first];
        const double y = place[plane.second];
        places.x.values.push_back(x);
        places.y.push_back(y);
        action(probe, x, y);
        diagram.labels.push_back({x, y, probeListText(probe), detail});
    });
    diagram.plot.series.push_back(std::move(places));
}

double scalePixels(const WorkspaceSettings& settings) {
    return std::clamp(settings.vectors.pixels, 0, kLongestScale);
}

PaneContent meanPlan(const PaneRequest& request) {
    const WorkspaceSettings& settings = request.workspace.settings;
    const Plane plane = planeOf(shownPlane(request.workspace));
    Diagram diagram = newPlan(request, plane);
    PlotSeries means = arrows(seriesColour(0), scalePixels(settings), settings.vectors.speed,
                              formatted("%.1f cm/s", settings.vectors.speed));
    forEachProbe(request.workspace.dataFiles, plane, diagram,
                 [&](const SAdvProbe& probe, double x, double y) { addArrow(means, x, y, meanFlow(probe), plane); });
    // The arrows before the markers, which stand on their ends.
    diagram.plot.series.insert(diagram.plot.series.end() - 1, std::move(means));
    return diagramOrMessage(std::move(diagram));
}

PaneContent extremesPlan(const PaneRequest& request) {
    const WorkspaceSettings& settings = request.workspace.settings;
    const Plane plane = planeOf(shownPlane(request.workspace));
    Diagram diagram = newPlan(request, plane);
    const double speed = settings.vectors.speed * settings.vectors.smaller;
    PlotSeries maxima = arrows(kRed, scalePixels(settings), speed,
                               formatted("%.0f cm/s [red arrows are maximum and blue are minimum values]", speed));
    PlotSeries minima = arrows(kBlue, scalePixels(settings), speed, {});
    minima.attributes.penStyle = kDashed;
    forEachProbe(request.workspace.dataFiles, plane, diagram, [&](const SAdvProbe& probe, double x, double y) {
        const VelocityExtremes extremes = velocityExtremes(probe);
        addArrow(maxima, x, y, extremes.highest, plane);
        addArrow(minima, x, y, extremes.lowest, plane);
    });
    diagram.plot.series.insert(diagram.plot.series.end() - 1, {std::move(maxima), std::move(minima)});
    return diagramOrMessage(std::move(diagram));
}

TableContent directionsTable(const SAdvSet& set) {
    TableContent table;
    table.title = "Probe's coordinates and mean flow directions";
    table.headers = {"File, Probe", "Heading", "Roll", "Pitch"};
    for (const SAdvFile& file : set.files) {
        for (const SAdvProbe& probe : file.probes) {
            const FlowDirections d = meanFlowDirections(meanFlow(probe));
            table.rows.push_back({formatted("%s, probe %d", file.fileName.c_str(), asInt(probe.probeNumber)),
                                  {d.heading, d.roll, d.pitch}});
        }
    }
    return table;
}

PaneContent information(const SAdvProbe* probe) {
    if (probe == nullptr || !hasWholeRecord(*probe)) {
        return {};
    }
    TextPanel panel;
    panel.lines = probeInformation(*probe);
    return panel;
}

}  // namespace

PaneContent describeVectors(const PaneRequest& request, const SAdvProbe* probe) {
    if (request.workspace.dataFiles.files.IsEmpty()) {
        return {};
    }
    switch (request.pane) {
        case Pane::LeftTop:
            return meanPlan(request);
        case Pane::LeftBottom:
            return extremesPlan(request);
        case Pane::RightTop:
            return information(probe);
        case Pane::RightBottom:
            return directionsTable(request.workspace.dataFiles);
    }
    return {};
}

}  // namespace vorlan
