// The document's commands of the stages after pre-processing.
#include "analysis/AnalysedSeries.h"
#include "analysis/SpectralAnalysis.h"
#include "app/CVorl_ADVDoc.h"

namespace vorlan {

namespace {
constexpr int kSpectralBarOffset = 170;
}

Outcome CVorl_ADVDoc::SpectralAnalysis(const SpectralSettings& dialog) {
    WorkspaceSettings& settings = workspace_.settings;
    storeSpectralSettings(dialog, settings);
    settings.lastWindowCode = windowCodeOfButton(dialog.windowButton);
    const int unit = unitSelectorOfButton(dialog.unitButton);
    settings.lastUnitIsRad = unit == 1;
    SetModified();
    const Outcome outcome = RunOnProbe(
        [&](SAdvProbe& copy, Progress& progress) {
            formAnalysedSeries(copy);
            for (int kind : {0, 1, 2}) {
                copy.Series(kind).ClearSpectralResults();
            }
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
    if (outcome == Outcome::Done) {
        EnterStage(Stage::Spectral);
    }
    Tell(outcome == Outcome::Done ? Change::Selection : Change::View);
    return outcome;
}

}  // namespace vorlan
