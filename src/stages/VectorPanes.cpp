// Plans of the mean and of the extreme velocities over the measuring grid and the flow boundaries.
#include <algorithm>
#include <limits>

#include "model/ProbeInformation.h"
#include "model/SSvmSet.h"
#include "model/Text.h"
#include "stages/DiagramParts.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t kRed = 255;
constexpr std::int32_t kBlue = 65536 * 255;
constexpr int kBoundaryColour = 4;

/// The two axes of a plan: 0 X, 1 Y, 2 Z.
struct Plane {
    std::size_t first;
    std::size_t second;
};
constexpr std::array<Plane, 3> kPlanes = {{{0, 1}, {0, 2}, {1, 2}}};
constexpr std::array<const char*, 3> kAxisTitles = {"X, m", "Y, m", "Z, m"};
constexpr std::array<SArray SBndFile::*, 3> kBoundaryAxes = {&SBndFile::x, &SBndFile::y, &SBndFile::z};
constexpr std::array<SArray SSvmFile::*, 3> kVolumeAxes = {&SSvmFile::x, &SSvmFile::y, &SSvmFile::z};

Plane planeOf(const WorkspaceSettings& settings) {
    const bool known = settings.planPlane >= 0 && settings.planPlane < static_cast<int>(kPlanes.size());
    return kPlanes[known ? static_cast<std::size_t>(settings.planPlane) : kPlanes.size() - 1];
}

/// False for a record whose columns do not belong together: it has no mean flow.
bool hasWholeRecord(const SAdvProbe& probe) {
    const SMultiArray& table = probe.Velocities();
    return table.GetSize() >= SAdvProbe::kComponents &&
           std::all_of(table.begin(), table.end(),
                       [&](const SArray& column) { return column.GetSize() >= probe.WorkingSamples(); });
}

std::array<double, 3> meansOf(const SAdvProbe& probe) {
    return hasWholeRecord(probe) ? meanVelocities(probe) : std::array{kNaN, kNaN, kNaN};
}

struct VelocityExtremes {
    std::array<double, 3> lowest{kNaN, kNaN, kNaN};
    std::array<double, 3> highest{kNaN, kNaN, kNaN};
};

VelocityExtremes velocityExtremes(const SAdvProbe& probe) {
    VelocityExtremes extremes;
    if (!hasWholeRecord(probe)) {
        return extremes;
    }
    const int samples = probe.WorkingSamples();
    for (std::size_t c = 0; c < extremes.lowest.size(); ++c) {
        const SArray& column = probe.Velocities().GetAt(static_cast<int>(c));
        const auto units = column.view();
        std::int32_t lowest = std::numeric_limits<std::int32_t>::max();
        std::int32_t highest = std::numeric_limits<std::int32_t>::min();
        for (int i = 0; i < samples; ++i) {
            if (probe.Counts(i)) {
                lowest = std::min(lowest, units[static_cast<std::size_t>(i)]);
                highest = std::max(highest, units[static_cast<std::size_t>(i)]);
            }
        }
        if (lowest <= highest) {
            extremes.lowest[c] = lowest * column.GetScale();
            extremes.highest[c] = highest * column.GetScale();
        }
    }
    return extremes;
}

/// All boundaries as one line, broken between them.
PlotSeries boundaryLine(const SBndSet& boundaries, Plane plane) {
    PlotSeries line = recordLine({}, {}, kBoundaryColour, "flow boundaries");
    line.attributes.penWidth = 2;
    for (const SBndFile& boundary : boundaries) {
        if (!line.y.empty()) {
            line.x.values.push_back(0.0);
            line.y.push_back(kNaN);
        }
        const SArray& first = boundary.*kBoundaryAxes[plane.first];
        const SArray& second = boundary.*kBoundaryAxes[plane.second];
        for (int node = 0; node < std::min(first.GetSize(), second.GetSize()); ++node) {
            line.x.values.push_back(first.GetValue(node));
            line.y.push_back(second.GetValue(node));
        }
    }
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

/// Calls action with every probe and its place in the plan, and labels the place.
template <class Action>
void forEachProbe(const SAdvSet& set, Plane plane, Diagram& diagram, Action action) {
    SSvmSet volumes;
    volumes.Build(set);
    for (int f = 0; f < set.files.GetSize(); ++f) {
        const SSvmFile& places = volumes.files().at(static_cast<std::size_t>(f));
        const SAdvProbesArray& probes = set.files.GetAt(f).probes;
        for (int p = 0; p < probes.GetSize(); ++p) {
            const double x = (places.*kVolumeAxes[plane.first]).GetValue(p);
            const double y = (places.*kVolumeAxes[plane.second]).GetValue(p);
            action(probes.GetAt(p), x, y);
            diagram.labels.push_back({x, y, probeListText(probes.GetAt(p))});
        }
    }
}

PaneContent meanPlan(const PaneRequest& request) {
    const WorkspaceSettings& settings = request.workspace.settings;
    const Plane plane = planeOf(settings);
    Diagram diagram = newPlan(request, plane);
    PlotSeries means =
        arrows(seriesColour(0), settings.planPixels, settings.planSpeed, formatted("%.1f cm/s", settings.planSpeed));
    forEachProbe(request.workspace.dataFiles, plane, diagram,
                 [&](const SAdvProbe& probe, double x, double y) { addArrow(means, x, y, meansOf(probe), plane); });
    diagram.plot.series.push_back(std::move(means));
    return diagramOrMessage(std::move(diagram));
}

PaneContent extremesPlan(const PaneRequest& request) {
    const WorkspaceSettings& settings = request.workspace.settings;
    const Plane plane = planeOf(settings);
    Diagram diagram = newPlan(request, plane);
    const double speed = settings.planSpeed * settings.planSmaller;
    PlotSeries maxima = arrows(kRed, settings.planPixels, speed,
                               formatted("%.0f cm/s [red arrows are maximum and blue are minimum values]", speed));
    PlotSeries minima = arrows(kBlue, settings.planPixels, speed, {});
    forEachProbe(request.workspace.dataFiles, plane, diagram, [&](const SAdvProbe& probe, double x, double y) {
        const VelocityExtremes extremes = velocityExtremes(probe);
        addArrow(maxima, x, y, extremes.highest, plane);
        addArrow(minima, x, y, extremes.lowest, plane);
    });
    diagram.plot.series.push_back(std::move(maxima));
    diagram.plot.series.push_back(std::move(minima));
    return diagramOrMessage(std::move(diagram));
}

TableContent directionsTable(const SAdvSet& set) {
    TableContent table;
    table.title = "Probe's coordinates and mean flow directions";
    table.headers = {"File, Probe", "Heading", "Roll", "Pitch"};
    for (const SAdvFile& file : set.files) {
        for (const SAdvProbe& probe : file.probes) {
            const FlowDirections d = meanFlowDirections(meansOf(probe));
            table.rows.push_back({formatted("%s, probe %d", file.fileName.c_str(), static_cast<int>(probe.probeNumber)),
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
