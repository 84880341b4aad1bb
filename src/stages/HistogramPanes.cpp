// Distributions of the velocity components and their moments.
#include <algorithm>

#include "analysis/Histogram.h"
#include "analysis/MomentEstimators.h"
#include "analysis/ProbeMoments.h"
#include "analysis/ResultAxes.h"
#include "model/Index.h"
#include "stages/DiagramParts.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

// The colour of what is compared with the bars.
constexpr int kNormalColour = 1;
constexpr int kNormalPenWidth = 2;

/// The n + 1 ends of n grades over the range of the samples.
std::vector<double> gradeEnds(const STimeSeries& series) {
    const Extremes range = extremesOf(series.values);
    const int grades = series.histogram.GetSize();
    const double width = (range.maximum - range.minimum) / grades;
    std::vector<double> ends(asSize(grades) + 1);
    for (int k = 0; k <= grades; ++k) {
        ends[asSize(k)] = width * k + range.minimum;
    }
    return ends;
}

bool hasHistogram(const STimeSeries& series) {
    return !series.histogram.IsEmpty() && !series.values.IsEmpty();
}

PaneContent componentHistogram(const PaneRequest& request, const SAdvProbe& probe, int component) {
    Diagram diagram = newDiagram(request, &probe);
    beginYAtZero(diagram.frame);
    const STimeSeries& series = probe.Series(component);
    const HistogramSettings& settings = request.workspace.settings.histograms;
    if (hasHistogram(series)) {
        PlotSeries bars = recordLine(plotValues(series.histogram), SeriesX{0.0, 1.0, gradeEnds(series)}, 0,
                                     kVelocityLabels[asSize(component)]);
        bars.attributes.style = SeriesStyle::Bars;
        bars.attributes.barGapPercent = 100.0 - settings.barWidth;
        diagram.plot.series.push_back(std::move(bars));
        if (settings.normalApproximation) {
            NormalCurve normal = normalApproximation(series);
            PlotSeries line =
                recordLine(plotValues(normal.y), SeriesX{0.0, 1.0, std::move(normal.x)}, kNormalColour, "Normal");
            line.attributes.penWidth = kNormalPenWidth;
            diagram.plot.series.push_back(std::move(line));
        }
    }
    return diagramOrMessage(std::move(diagram));
}

PaneContent allComponents(const PaneRequest& request, const SAdvProbe& probe) {
    Diagram diagram = newDiagram(request, &probe);
    beginYAtZero(diagram.frame);
    for (int c = 0; c < SAdvProbe::kComponents; ++c) {
        const STimeSeries& series = probe.Series(c);
        if (!hasHistogram(series)) {
            continue;
        }
        diagram.plot.series.push_back(curve(plotValues(series.histogram), SeriesX{0.0, 1.0, gradeCentres(series)}, c,
                                            kVelocityLabels[asSize(c)]));
    }
    return diagramOrMessage(std::move(diagram));
}

TableContent::Row momentsRow(const char* title, const Moments& m) {
    return {title, {m.mean, m.variance, m.skewness, m.kurtosis}};
}

TableContent momentsTable(const SAdvProbe& probe, PhysicalValue value) {
    TableContent table;
    table.headers = {"  ", "Mean", "Variance", "Skewness", "Kurtosis"};
    if (value == PhysicalValue::Velocities) {
        constexpr std::array<const char*, 3> titles = {"U", "V", "W"};
        table.title = "    Statistical moments of velocity distributions";
        for (std::size_t c = 0; c < titles.size(); ++c) {
            table.rows.push_back(momentsRow(titles[c], probe.Series(asInt(c)).moments));
        }
        return table;
    }
    table.title = "    Statistical moments of stresses distributions";
    // The stored block may be older than the marks; it is all there is when the series are not.
    const SMultiArray& stresses = probe.Stresses();
    std::array<const SArray*, 3> columns{};
    for (int pair = 0; pair < std::min(stresses.GetSize(), 3); ++pair) {
        columns[asSize(pair)] = stresses.GetAt(pair).IsEmpty() ? nullptr : &stresses.GetAt(pair);
    }
    const std::array<Moments, 3> moments = countedMoments(probe, columns);
    for (std::size_t pair = 0; pair < columns.size(); ++pair) {
        table.rows.push_back(momentsRow(kStressLabels[pair],
                                        columns[pair] != nullptr ? moments[pair] : probe.StressMoments(asInt(pair))));
    }
    return table;
}

}  // namespace

PaneContent describeHistograms(const PaneRequest& request, const SAdvProbe* probe) {
    if (probe == nullptr) {
        return {};
    }
    switch (request.pane) {
        case Pane::LeftTop:
            return componentHistogram(request, *probe, STimeSeries::U);
        case Pane::LeftBottom:
            return componentHistogram(request, *probe, STimeSeries::V);
        case Pane::RightTop:
            return componentHistogram(request, *probe, STimeSeries::W);
        case Pane::RightBottom:
            if (request.showTable) {
                return momentsTable(*probe, request.value);
            }
            return allComponents(request, *probe);
    }
    return {};
}

}  // namespace vorlan
