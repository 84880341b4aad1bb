// Cross-correlation, cross spectra, coherence and phase of the velocity pairs; with stresses, correlation and
// co-spectrum of the Reynolds stresses, which carry the opposite sign.
#include <algorithm>
#include <cmath>

#include "analysis/SpectralScale.h"
#include "analysis/StorageOverflows.h"
#include "analysis/Stresses.h"
#include "model/Index.h"
#include "stages/DiagramParts.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

constexpr int kPhaseMarkerSize = 4;
constexpr std::array<const char*, kStressPairs> kPairLabels = {"u'-v'", "u'-w'", "v'-w'"};
constexpr std::array<const char*, kStressPairs> kReynoldsLabels = {"-u'v'", "-u'w'", "-v'w'"};

const char* labelOf(int pair, PhysicalValue value) {
    const auto index = asSize(pair);
    return value == PhysicalValue::Stresses ? kReynoldsLabels[index] : kPairLabels[index];
}

/// What a cross-covariance is multiplied with: 1 / sqrt(variance variance) for the correlation of the velocities.
double correlationFactor(const SAdvProbe& probe, int pair, PhysicalValue value) {
    if (value == PhysicalValue::Stresses) {
        return -1.0;
    }
    const StressPair components = kStressPairComponents[asSize(pair)];
    const auto variance = [&](int c) { return probe.statistics[SAdvProbe::kVelocityVariances + asSize(c)]; };
    return 1.0 / std::sqrt(variance(components.first) * variance(components.second));
}

/// Lags -(M-1) .. M-1: the backward function on the negative side, the forward one from lag 0 on.
PaneContent correlations(const PaneRequest& request, const SAdvProbe& probe) {
    Diagram diagram = newDiagram(request, &probe);
    for (int pair = 0; pair < kStressPairs; ++pair) {
        const double factor = correlationFactor(probe, pair, request.value);
        std::vector<double> values = plotColumn(probe.CrossBackward(), pair, factor);
        std::reverse(values.begin(), values.end());
        if (!values.empty()) {
            values.pop_back();
        }
        const double start = -static_cast<double>(values.size()) * probe.samplingInterval;
        const std::vector<double> forward = plotColumn(probe.CrossForward(), pair, factor);
        values.insert(values.end(), forward.begin(), forward.end());
        diagram.plot.series.push_back(
            curve(std::move(values), SeriesX{start, probe.samplingInterval, {}}, pair, labelOf(pair, request.value)));
    }
    diagram.notes = crossCovarianceOverflows(probe);
    return diagramOrMessage(std::move(diagram));
}

std::vector<double> crossSpectrum(const SAdvProbe& probe, int pair, PhysicalValue value) {
    const SMultiArray& coSpectra = probe.CoSpectra();
    if (value == PhysicalValue::Stresses) {
        return plotColumn(coSpectra, pair, -1.0);
    }
    std::vector<double> amplitudes = plotColumn(coSpectra, pair);
    const std::vector<double> quadrature = plotColumn(probe.QuadratureSpectra(), pair);
    amplitudes.resize(std::min(amplitudes.size(), quadrature.size()));
    for (std::size_t i = 0; i < amplitudes.size(); ++i) {
        amplitudes[i] = std::sqrt(amplitudes[i] * amplitudes[i] + quadrature[i] * quadrature[i]);
    }
    return amplitudes;
}

template <class ValuesOfPair>
Diagram overFrequency(const PaneRequest& request, const SAdvProbe& probe, PhysicalValue labels,
                      ValuesOfPair valuesOfPair) {
    Diagram diagram = newDiagram(request, &probe);
    nameFrequencyUnit(diagram.frame, probe.spectralUnit);
    beginXAtZero(diagram.frame);
    // Quadrature, phase and coherence are shorter than the covariance that sets the frequencies.
    const int length = SAdvProbe::ColumnLength(probe.CoSpectra());
    const double step = frequencyStep(length, probe.samplingInterval, asInt(probe.spectralUnit));
    for (int pair = 0; pair < kStressPairs; ++pair) {
        diagram.plot.series.push_back(curve(valuesOfPair(pair), SeriesX{0.0, step, {}}, pair, labelOf(pair, labels)));
    }
    return diagram;
}

/// Points only: a line would cross the diagram wherever the phase passes 180 degrees.
void drawAsPoints(Diagram& diagram) {
    constexpr std::array<MarkerKind, kStressPairs> markers = {MarkerKind::Circle, MarkerKind::Plus,
                                                              MarkerKind::Triangle};
    for (std::size_t pair = 0; pair < markers.size(); ++pair) {
        SeriesAtrType& attributes = diagram.plot.series[pair].attributes;
        attributes.style = SeriesStyle::Markers;
        attributes.markerKind = markers[pair];
        attributes.markerSize = kPhaseMarkerSize;
        attributes.penStyle = 0;
    }
}

/// Automatic marks of a full turn stand at its quarters.
void markQuarters(FrameAttributesType& frame) {
    if (frame.yStepMode == 0 && frame.yMinMode != 0 && frame.yMaxMode != 0 && frame.yMin == -180.0 &&
        frame.yMax == 180.0) {
        frame.yStepMode = 1;
        frame.yStep = 90.0;
    }
}

}  // namespace

PaneContent describeCrossSpectra(const PaneRequest& request, const SAdvProbe* probe) {
    if (probe == nullptr) {
        return {};
    }
    const auto columnsOf = [](const SMultiArray& table) {
        return [&table](int pair) { return plotColumn(table, pair); };
    };
    switch (request.pane) {
        case Pane::LeftTop:
            return correlations(request, *probe);
        case Pane::LeftBottom: {
            Diagram diagram = overFrequency(request, *probe, request.value,
                                            [&](int pair) { return crossSpectrum(*probe, pair, request.value); });
            // Co-spectra of the stresses have both signs; amplitudes are never negative.
            if (request.value == PhysicalValue::Stresses) {
                diagram.allowedScales = {ScaleType::Linear};
            }
            diagram.notes = crossSpectrumOverflows(*probe);
            return diagramOrMessage(std::move(diagram));
        }
        case Pane::RightTop: {
            Diagram diagram = overFrequency(request, *probe, PhysicalValue::Velocities, columnsOf(probe->Coherence()));
            diagram.notes = coherenceOverflows(*probe);
            return diagramOrMessage(std::move(diagram));
        }
        case Pane::RightBottom: {
            Diagram diagram = overFrequency(request, *probe, PhysicalValue::Velocities, columnsOf(probe->Phase()));
            drawAsPoints(diagram);
            markQuarters(diagram.frame);
            diagram.notes = crossSpectrumOverflows(*probe);
            return diagramOrMessage(std::move(diagram));
        }
    }
    return {};
}

}  // namespace vorlan
