// Correlation functions, power spectra and structure functions of the velocity components, and the quantities read
// off them.
#include "analysis/SpectralScale.h"
#include "analysis/StorageOverflows.h"
#include "model/Index.h"
#include "stages/DiagramParts.h"
#include "stages/StagePanes.h"
#include "stages/TurbulenceReadOut.h"

namespace vorlan {

namespace {

PaneContent correlationFunctions(const PaneRequest& request, const SAdvProbe& probe) {
    Diagram diagram = newDiagram(request, &probe);
    for (int c = 0; c < SAdvProbe::kComponents; ++c) {
        const STimeSeries& series = probe.Series(c);
        diagram.plot.series.push_back(curve(plotValues(series.correlation, 1.0 / series.moments.variance),
                                            SeriesX{0.0, probe.samplingInterval, {}}, c, kVelocityLabels[asSize(c)]));
    }
    return diagramOrMessage(std::move(diagram));
}

PaneContent powerSpectra(const PaneRequest& request, const SAdvProbe& probe) {
    Diagram diagram = newDiagram(request, &probe);
    beginXAtZero(diagram.frame);
    nameFrequencyUnit(diagram.frame, probe.spectralUnit);
    for (int c = 0; c < SAdvProbe::kComponents; ++c) {
        const SArray& spectrum = probe.Series(c).spectrum;
        const double step = frequencyStep(spectrum.GetSize(), probe.samplingInterval, asInt(probe.spectralUnit));
        diagram.plot.series.push_back(
            curve(plotValues(spectrum), SeriesX{0.0, step, {}}, c, kVelocityLabels[asSize(c)]));
    }
    diagram.notes = spectrumOverflows(probe);
    return diagramOrMessage(std::move(diagram));
}

PaneContent structureFunctions(const PaneRequest& request, const SAdvProbe& probe) {
    Diagram diagram = newDiagram(request, &probe);
    beginXAtZero(diagram.frame);
    for (int c = 0; c < SAdvProbe::kComponents; ++c) {
        diagram.plot.series.push_back(curve(plotValues(probe.Series(c).structureFunction),
                                            SeriesX{0.0, probe.samplingInterval, {}}, c, kVelocityLabels[asSize(c)]));
    }
    return diagramOrMessage(std::move(diagram));
}

TableContent scalesTable(const SAdvProbe& probe) {
    TableContent table;
    table.title = "    Dissipation Rate and Turbulence Scales";
    table.headers = {"  ", "Scale, s", "Spectrum", "Dis. Rate"};
    // Dissipation rates well below one are common.
    table.numberFormat = "%.4f";
    constexpr std::array<const char*, 3> titles = {"u", "v", "w"};
    const std::array<std::size_t, 3> parts = {SAdvProbe::kTimeScales, SAdvProbe::kSpectrumIntegrals,
                                              SAdvProbe::kDissipationRate};
    for (std::size_t c = 0; c < titles.size(); ++c) {
        table.rows.push_back(
            {titles[c],
             {probe.resultBlock[SAdvProbe::kTimeScales + c], probe.resultBlock[SAdvProbe::kSpectrumIntegrals + c]}});
    }
    table.rows.front().values.push_back(probe.resultBlock[SAdvProbe::kDissipationRate]);
    for (TableContent::Row& row : table.rows) {
        for (std::size_t column = 0; column < row.values.size(); ++column) {
            if (!probe.HasResults(parts[column])) {
                row.empty.push_back(column);
            }
        }
    }
    table.note = oldResultsText(probe);
    return table;
}

}  // namespace

PaneContent describeSpectra(const PaneRequest& request, const SAdvProbe* probe) {
    if (probe == nullptr) {
        return {};
    }
    switch (request.pane) {
        case Pane::LeftTop:
            return correlationFunctions(request, *probe);
        case Pane::LeftBottom:
            return powerSpectra(request, *probe);
        case Pane::RightTop:
            return structureFunctions(request, *probe);
        case Pane::RightBottom:
            return scalesTable(*probe);
    }
    return {};
}

}  // namespace vorlan
