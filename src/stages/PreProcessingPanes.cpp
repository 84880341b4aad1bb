// The record before and after pre-processing: velocities or stresses, quality scores, auxiliary data, statistics.
#include <algorithm>
#include <limits>

#include "model/Index.h"
#include "stages/DiagramParts.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

constexpr const char* kNoAuxiliaryText = "Auxiliary data are not available";
constexpr const char* kNoQualityText = "The data quality scores for all samples are lower than thresholds !";
constexpr int kRejectedSize = 4;  // pixels

/// Samples that do not count become gaps; the others keep their times.
void leaveOutUncounted(const SAdvProbe& probe, std::vector<double>& values) {
    if (probe.UsesAllSamples()) {
        return;
    }
    const auto marks = probe.sampleFlags.view();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i >= marks.size() || marks[i] < 1) {
            values[i] = std::numeric_limits<double>::quiet_NaN();
        }
    }
}

void addRecord(Diagram& diagram, const SAdvProbe& probe, std::vector<double> values, const char* legend) {
    if (values.empty()) {
        return;
    }
    leaveOutUncounted(probe, values);
    const double duration = static_cast<double>(values.size()) * probe.samplingInterval;
    diagram.duration = std::max(diagram.duration.value_or(0.0), duration);
    const int index = asInt(diagram.plot.series.size());
    diagram.plot.series.push_back(
        recordLine(std::move(values), SeriesX{0.0, probe.samplingInterval, {}}, index, legend));
}

/// Markers where samples were found bad and replaced, over the lines of all components. Left out when bad samples are
/// gaps anyway, and where a filter has left samples that are no longer those that the marks speak of.
void addRejected(Diagram& diagram, const SAdvProbe& probe) {
    const auto marks = probe.sampleFlags.view();
    PlotSeries rejected;
    for (const PlotSeries& line : diagram.plot.series) {
        if (!probe.UsesAllSamples() || line.y.size() != marks.size()) {
            return;
        }
        for (std::size_t i = 0; i < marks.size(); ++i) {
            if (marks[i] < 1) {
                rejected.x.values.push_back(line.x.at(i));
                rejected.y.push_back(line.y[i]);
            }
        }
    }
    if (rejected.y.empty()) {
        return;
    }
    rejected.attributes.style = SeriesStyle::Markers;
    rejected.attributes.markerSize = kRejectedSize;
    rejected.attributes.legendText = "Rejected";
    diagram.plot.series.push_back(std::move(rejected));
}

template <std::size_t N>
Diagram recordDiagram(const PaneRequest& request, const SAdvProbe& probe, const SMultiArray& table,
                      const std::array<const char*, N>& legends) {
    Diagram diagram = newDiagram(request, &probe);
    for (std::size_t c = 0; c < N; ++c) {
        addRecord(diagram, probe, plotColumn(table, asInt(c)), legends[c]);
    }
    return diagram;
}

PaneContent velocities(const PaneRequest& request, const SAdvProbe& probe) {
    Diagram diagram = recordDiagram(request, probe, probe.Velocities(), kVelocityLabels);
    if (!probe.marksMoved) {
        addRejected(diagram, probe);
    }
    // The probe's caption tells more than the title it begins with (how many spikes were removed).
    std::string& title = diagram.frame.plotTitle;
    if (!title.empty() && probe.title.starts_with(title)) {
        title = probe.title;
    }
    return diagramOrMessage(std::move(diagram));
}

PaneContent stresses(const PaneRequest& request, const SAdvProbe& probe) {
    Diagram diagram = recordDiagram(request, probe, probe.Stresses(), kStressLabels);
    if (!probe.marksMoved) {
        addRejected(diagram, probe);
    }
    return diagramOrMessage(std::move(diagram));
}

std::vector<double> beamAverages(const SMultiArray& scores) {
    std::vector<double> averages = plotColumn(scores, 0);
    for (int beam = 1; beam < scores.GetSize(); ++beam) {
        const SArray& column = scores.GetAt(beam);
        averages.resize(std::min(averages.size(), asSize(column.GetSize())));
        const auto units = column.view();
        for (std::size_t i = 0; i < averages.size(); ++i) {
            averages[i] += units[i] * column.GetScale();
        }
    }
    for (double& average : averages) {
        average /= scores.GetSize();
    }
    return averages;
}

bool noSampleCounts(const SAdvProbe& probe) {
    return !probe.UsesAllSamples() &&
           std::none_of(probe.sampleFlags.begin(), probe.sampleFlags.end(), [](std::int32_t m) { return m >= 1; });
}

PaneContent qualityScores(const PaneRequest& request, const SAdvProbe& probe) {
    if (probe.WorkingSamples() > 0 && noSampleCounts(probe)) {
        return PaneMessage{kNoQualityText};
    }
    Diagram diagram = newDiagram(request, &probe);
    addRecord(diagram, probe, beamAverages(probe.CorrelationScores()), "Correlation");
    addRecord(diagram, probe, beamAverages(probe.SignalToNoise()), "SNR");
    addRejected(diagram, probe);
    return diagramOrMessage(std::move(diagram));
}

template <std::size_t N>
PaneContent auxiliary(const PaneRequest& request, const SAdvProbe& probe, const SMultiArray& table,
                      const std::array<const char*, N>& legends) {
    // Columns that a clipping emptied can be brought back; columns that were never there cannot.
    if (table.IsEmpty() || (table.HasNoValues() && probe.WorkingSamples() > 0)) {
        return PaneMessage{kNoAuxiliaryText};
    }
    return diagramOrMessage(recordDiagram(request, probe, table, legends));
}

TableContent statisticsTable(const SAdvProbe& probe) {
    TableContent table;
    table.title = "    Main Statistical Characteristics (sampled and transformed)";
    table.headers = {"  ", "Mean", "Variance", "Skewness", "Kurtosis"};
    constexpr std::array<const char*, 3> sampled = {"Sampled U", "Sampled V", "Sampled W"};
    constexpr std::array<const char*, 3> modified = {"Modified U", "Modified V", "Modified W"};
    for (std::size_t c = 0; c < sampled.size(); ++c) {
        const auto stored = [&](std::size_t group) {
            return probe.scalarResults[SAdvProbe::kSampledMoments + 3 * group + c];
        };
        table.rows.push_back({sampled[c], {stored(0), stored(1), stored(2)}});
    }
    for (std::size_t c = 0; c < modified.size(); ++c) {
        const Moments m = probe.VelocityMoments(asInt(c));
        table.rows.push_back({modified[c], {m.mean, m.variance, m.skewness, m.kurtosis}});
    }
    return table;
}

}  // namespace

PaneContent describePreProcessing(const PaneRequest& request, const SAdvProbe* probe) {
    if (probe == nullptr) {
        return {};
    }
    switch (request.pane) {
        case Pane::LeftTop:
            return request.value == PhysicalValue::Stresses ? stresses(request, *probe) : velocities(request, *probe);
        case Pane::LeftBottom:
            return qualityScores(request, *probe);
        case Pane::RightTop:
            return auxiliary(request, *probe, probe->Compass(), std::array{"Heading", "Pitch", "Roll"});
        case Pane::RightBottom:
            if (request.showTable) {
                return statisticsTable(*probe);
            }
            return auxiliary(request, *probe, probe->Pressure(), std::array{"Pressure"});
    }
    return {};
}

}  // namespace vorlan
