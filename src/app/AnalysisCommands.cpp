// The document's commands of the stages after pre-processing.
#include "analysis/AnalysedSeries.h"
#include "analysis/CrossSpectralAnalysis.h"
#include "analysis/Histogram.h"
#include "analysis/Quadrants.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/Stationarity.h"
#include "app/CVorl_ADVDoc.h"

namespace vorlan {

namespace {

// Where the progress bars stand, pixels from the left edge of the first status pane.
constexpr int kSpectralBarOffset = 170;
constexpr int kCrossSpectralBarOffset = 200;

}  // namespace

Outcome CVorl_ADVDoc::Analyse(Stage stage, const Analysis& analysis, int progressOffset) {
    const Outcome outcome = RunOnProbe(
        [&](SAdvProbe& copy, Progress& progress) {
            const std::string refusal = analysis(copy, progress);
            if (!refusal.empty()) {
                port_->refuse(refusal);
            }
            return refusal.empty() ? Outcome::Done : Outcome::Refused;
        },
        progressOffset);
    if (outcome == Outcome::Done) {
        EnterStage(stage);
    }
    Tell(outcome == Outcome::Done ? Change::Content : Change::View);
    return outcome;
}

Outcome CVorl_ADVDoc::StationarityAnalysis(const StationaritySettings& settings) {
    storeStationaritySettings(settings, workspace_.settings);
    SetModified();
    return Analyse(Stage::Stationarity,
                   [&](SAdvProbe& copy, Progress& progress) { return analyseStationarity(copy, settings, progress); });
}

Outcome CVorl_ADVDoc::Distributions(const HistogramSettings& settings) {
    storeHistogramSettings(settings, workspace_.settings);
    SetModified();
    return Analyse(Stage::Histograms,
                   [&](SAdvProbe& copy, Progress& progress) { return analyseDistributions(copy, settings, progress); });
}

Outcome CVorl_ADVDoc::SpectralAnalysis(const SpectralSettings& settings) {
    storeSpectralSettings(settings, workspace_.settings);
    SetModified();
    return Analyse(
        Stage::Spectral,
        [&](SAdvProbe& copy, Progress& progress) {
            const SpectralRun run = spectralRunOf(settings, countedSamples(copy));
            workspace_.settings.lastTruncationPoint = run.lags;
            return analyseSpectra(copy, run, progress);
        },
        kSpectralBarOffset);
}

Outcome CVorl_ADVDoc::CrossSpectralAnalysis() {
    return Analyse(
        Stage::CrossSpectral, [](SAdvProbe& copy, Progress& progress) { return analyseCrossSpectra(copy, progress); },
        kCrossSpectralBarOffset);
}

Outcome CVorl_ADVDoc::QuadrantsAnalysis(const QuadrantSettings& settings) {
    storeQuadrantSettings(settings, workspace_.settings);
    SetModified();
    return Analyse(Stage::Quadrants,
                   [&](SAdvProbe& copy, Progress& progress) { return analyseQuadrants(copy, settings, progress); });
}

}  // namespace vorlan
