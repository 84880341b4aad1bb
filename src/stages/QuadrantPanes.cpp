// Contribution of the quadrants to a stress by hole size, and the velocities around its events.
#include <algorithm>

#include "analysis/Quadrants.h"
#include "analysis/ResultAxes.h"
#include "analysis/Stresses.h"
#include "model/Index.h"
#include "stages/DiagramParts.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

constexpr std::array<const char*, 5> kBucketLabels = {"1", "2", "3", "4", "Hole"};

Diagram byHoleSize(const PaneRequest& request, const SAdvProbe& probe, const SMultiArray& table) {
    Diagram diagram = newDiagram(request, &probe);
    const SeriesX sizes{0.0, holeIncrementOf(probe, request.workspace.settings.quadrants.increment), {}};
    for (int q = 0; q < asInt(kBucketLabels.size()); ++q) {
        diagram.plot.series.push_back(curve(plotColumn(table, q), sizes, q, kBucketLabels[asSize(q)]));
    }
    if (contributionSumsExceed(probe)) {
        diagram.notes.push_back(kContributionsExceed);
    }
    return diagram;
}

PaneContent pattern(const PaneRequest& request, const SAdvProbe& probe, const SMultiArray& table) {
    Diagram diagram = newDiagram(request, &probe);
    const auto type = std::min<std::size_t>(probe.quadrantStress, kStressPairComponents.size() - 1);
    const StressPair pair = kStressPairComponents[type];
    int column = 0;
    for (const int component : {pair.first, pair.second}) {
        std::vector<double> values = plotColumn(table, column);
        const double first = patternLag(0, asInt(values.size()), probe.samplingInterval);
        const SeriesX times{first, probe.samplingInterval, {}};
        diagram.plot.series.push_back(curve(std::move(values), times, component, kVelocityLabels[asSize(component)]));
        ++column;
    }
    return diagramOrMessage(std::move(diagram));
}

}  // namespace

PaneContent describeQuadrants(const PaneRequest& request, const SAdvProbe* probe) {
    if (probe == nullptr) {
        return {};
    }
    switch (request.pane) {
        case Pane::LeftTop:
            return diagramOrMessage(byHoleSize(request, *probe, probe->Contributions()));
        case Pane::LeftBottom:
            return pattern(request, *probe, probe->EjectionPattern());
        case Pane::RightTop: {
            Diagram times = byHoleSize(request, *probe, probe->ContributionTimes());
            beginYAtZero(times.frame);
            return diagramOrMessage(std::move(times));
        }
        case Pane::RightBottom:
            return pattern(request, *probe, probe->SweepPattern());
    }
    return {};
}

}  // namespace vorlan
