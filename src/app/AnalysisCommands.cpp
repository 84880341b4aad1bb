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

Outcome CVorl_ADVDoc::Analyse(Stage stage, const ProbeOperation& analysis, int progressOffset) {
    const Outcome outcome = RunOnProbe(analysis, progressOffset);
    if (outcome == Outcome::Done) {
        EnterStage(stage);
    }
    Tell(outcome == Outcome::Done ? Change::Content : Change::View);
    return outcome;
}

Outcome CVorl_ADVDoc::StationarityAnalysis(const StationaritySettings& settings) {
    storeStationaritySettings(settings, workspace_.settings);
    SetModified();
    return Analyse(Stage::Stationarity, [&](SAdvProbe& copy, Progress& progress) {
        analyseStationarity(copy, settings, progress);
        return Outcome::Done;
    });
}

Outcome CVorl_ADVDoc::Distributions(const HistogramSettings& settings) {
    storeHistogramSettings(settings, workspace_.settings);
    SetModified();
    return Analyse(Stage::Histograms, [&](SAdvProbe& copy, Progress& progress) {
        analyseDistributions(copy, settings, progress);
        return Outcome::Done;
    });
}

Outcome CVorl_ADVDoc::SpectralAnalysis(const SpectralSettings& dialog) {
    WorkspaceSettings& settings = workspace_.settings;
    storeSpectralSettings(dialog, settings);
    settings.lastWindowCode = windowCodeOfButton(dialog.windowButton);
    const int unit = unitSelectorOfButton(dialog.unitButton);
    settings.lastUnitIsRad = unit == 1;
    SetModified();
    return Analyse(
        Stage::Spectral,
        [&](SAdvProbe& copy, Progress& progress) {
            formAnalysedSeries(copy);
            const int samples = copy.seriesU.values.GetSize();
            const SpectralRun run{truncationPoint(dialog, samples), settings.lastWindowCode, unit};
            settings.lastTruncationPoint = run.lags;
            if (!truncationPointFits(run.lags, samples)) {
                port_->refuse(kTruncationTooLarge);
                return Outcome::Refused;
            }
            progress.status("Spectral analysis calculations: ");
            analyseSpectra(copy, run, progress);
            return Outcome::Done;
        },
        kSpectralBarOffset);
}

Outcome CVorl_ADVDoc::CrossSpectralAnalysis() {
    return Analyse(
        Stage::CrossSpectral,
        [&](SAdvProbe& copy, Progress& progress) {
            const std::string refusal = crossSpectralRefusal(copy);
            if (!refusal.empty()) {
                port_->refuse(refusal);
                return Outcome::Refused;
            }
            analyseCrossSpectra(copy, progress);
            return Outcome::Done;
        },
        kCrossSpectralBarOffset);
}

Outcome CVorl_ADVDoc::QuadrantsAnalysis(const QuadrantSettings& settings) {
    storeQuadrantSettings(settings, workspace_.settings);
    SetModified();
    return Analyse(Stage::Quadrants, [&](SAdvProbe& copy, Progress& progress) {
        analyseQuadrants(copy, settings, progress);
        return Outcome::Done;
    });
}

}  // namespace vorlan
