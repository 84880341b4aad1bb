#include "analysis/CrossSpectralAnalysis.h"

#include <array>

#include "analysis/CrossSpectralFunctions.h"
#include "analysis/ProgressPart.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/Stresses.h"
#include "model/Index.h"

namespace vorlan {

namespace {

constexpr double kResolution = 1e-7;

using Functions = std::vector<std::vector<double>>;

void store(SMultiArray& table, const Functions& functions) {
    table.Reshape(asInt(functions.size()), kResolution);
    for (int pair = 0; pair < table.GetSize(); ++pair) {
        table.ElementAt(pair).StoreValues(functions[asSize(pair)]);
    }
}

/// (forward + sign * backward) / 2 of every pair, as the resolution of the covariances holds it.
Functions halfSums(const SMultiArray& forward, const SMultiArray& backward, double sign) {
    Functions halves;
    for (int pair = 0; pair < kStressPairs; ++pair) {
        std::vector<double> half = forward.GetAt(pair).Values();
        const std::vector<double> other = backward.GetAt(pair).Values();
        for (std::size_t k = 0; k < half.size(); ++k) {
            half[k] = (half[k] + sign * other[k]) * 0.5;
        }
        SArray stored(forward.GetAt(pair).GetScale());
        stored.StoreValues(half);
        halves.push_back(stored.Values());
    }
    return halves;
}

void computeCovariances(SAdvProbe& probe, int lags, Progress& progress) {
    std::array<std::vector<double>, SAdvProbe::kComponents> fluctuations;
    for (std::size_t c = 0; c < fluctuations.size(); ++c) {
        fluctuations[c] = workingFluctuation(probe, asInt(c));
        progress.pump();
    }
    Functions forward;
    Functions backward;
    for (const StressPair& pair : kStressPairComponents) {
        const std::vector<double>& x = fluctuations[asSize(pair.first)];
        const std::vector<double>& y = fluctuations[asSize(pair.second)];
        const double begin = static_cast<double>(forward.size()) / kStressPairs;
        ProgressPart first(progress, begin, begin + 0.5 / kStressPairs);
        forward.push_back(crossCovariance(x, y, lags, first));
        ProgressPart second(progress, begin + 0.5 / kStressPairs, begin + 1.0 / kStressPairs);
        backward.push_back(crossCovariance(y, x, lags, second));
    }
    store(probe.CrossForward(), forward);
    store(probe.CrossBackward(), backward);
}

void computePhase(SAdvProbe& probe) {
    Functions phases;
    for (int pair = 0; pair < kStressPairs; ++pair) {
        const std::vector<double> co = probe.CoSpectra().GetAt(pair).Values();
        const std::vector<double> quadrature = probe.QuadratureSpectra().GetAt(pair).Values();
        std::vector<double>& phase = phases.emplace_back();
        for (std::size_t i = 0; i + 1 < co.size(); ++i) {
            phase.push_back(crossPhase(co[i], quadrature[i]));
        }
    }
    store(probe.Phase(), phases);
}

void computeCoherence(SAdvProbe& probe) {
    Functions coherences;
    for (int pair = 0; pair < kStressPairs; ++pair) {
        const StressPair& components = kStressPairComponents[asSize(pair)];
        const std::vector<double> co = probe.CoSpectra().GetAt(pair).Values();
        const std::vector<double> quadrature = probe.QuadratureSpectra().GetAt(pair).Values();
        const SArray& spectrumX = probe.Series(components.first).spectrum;
        const SArray& spectrumY = probe.Series(components.second).spectrum;
        std::vector<double>& coherence = coherences.emplace_back();
        for (std::size_t i = 0; i < quadrature.size(); ++i) {
            const int index = asInt(i);
            coherence.push_back(
                squaredCoherence(co[i], quadrature[i], spectrumX.GetValue(index), spectrumY.GetValue(index)));
        }
    }
    store(probe.Coherence(), coherences);
}

}  // namespace

std::string analyseCrossSpectra(SAdvProbe& probe, Progress& progress) {
    if (probe.spectralLags > static_cast<std::uint32_t>(probe.WorkingSamples() / 2)) {
        return kTruncationTooLarge;
    }
    progress.status(kCrossSpectralStatus);
    progress.pump();
    for (SMultiArray* table : {&probe.CrossForward(), &probe.CrossBackward(), &probe.CoSpectra(),
                               &probe.QuadratureSpectra(), &probe.Phase(), &probe.Coherence()}) {
        table->RemoveAll();
    }
    progress.pump();

    progress.position(5);
    prepareStresses(probe, progress);
    ProgressPart covariances(progress, 0.05, 0.3);
    computeCovariances(probe, asInt(probe.spectralLags), covariances);

    progress.position(30);
    const SMultiArray& forward = probe.CrossForward();
    const SMultiArray& backward = probe.CrossBackward();
    const CrossSpectrumRun run{asInt(probe.spectralWindow), asInt(probe.spectralUnit), probe.samplingInterval};
    ProgressPart even(progress, 0.3, 0.5);
    store(probe.CoSpectra(), coSpectra(halfSums(forward, backward, 1.0), run, even));

    progress.position(50);
    ProgressPart odd(progress, 0.5, 0.8);
    store(probe.QuadratureSpectra(), quadratureSpectra(halfSums(forward, backward, -1.0), run, odd));

    progress.position(80);
    computePhase(probe);

    progress.position(90);
    computeCoherence(probe);

    progress.position(100);
    probe.SetDone(DoneMark::CrossSpectral);
    return {};
}

}  // namespace vorlan
