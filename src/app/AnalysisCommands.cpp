// The document's commands of the stages after pre-processing.
#include "analysis/AnalysedSeries.h"
#include "analysis/CrossSpectralAnalysis.h"
#include "analysis/Histogram.h"
#include "analysis/Quadrants.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/Stationarity.h"
#include "app/CVorl_ADVDoc.h"
#include "app/CommandReports.h"

namespace vorlan {

Outcome CVorl_ADVDoc::Analyse(const ProbeCommand& command, const Analysis& analysis, const Sentence& sentence) {
    const Outcome outcome = RunOnProbe(command, [&](SAdvProbe& copy, Progress& progress) {
        const std::string refusal = analysis(copy, progress);
        if (!refusal.empty()) {
            port_->refuse(refusal);
        }
        return refusal.empty() ? Outcome::Done : Outcome::Refused;
    });
    return Report(outcome, sentence);
}

Outcome CVorl_ADVDoc::StationarityAnalysis(const StationaritySettings& settings) {
    ProbeCommand command{.calculation = Calculation::Stationarity,
                         .given = settings,
                         .settings = Settings(),
                         .stage = Stage::Stationarity};
    command.settings->stationarity = settings;
    return Analyse(
        command, [&](SAdvProbe& copy, Progress& progress) { return analyseStationarity(copy, settings, progress); },
        [&] { return stationarityReport(settings); });
}

Outcome CVorl_ADVDoc::Distributions(const HistogramSettings& settings) {
    ProbeCommand command{.calculation = Calculation::Distributions,
                         .given = settings,
                         .settings = Settings(),
                         .stage = Stage::Histograms};
    command.settings->histograms = settings;
    return Analyse(
        command, [&](SAdvProbe& copy, Progress& progress) { return analyseDistributions(copy, settings, progress); },
        [&] { return histogramsReport(settings); });
}

Outcome CVorl_ADVDoc::SpectralAnalysis(const SpectralDialogValues& settings) {
    ProbeCommand command{
        .calculation = Calculation::Spectral, .given = settings, .settings = Settings(), .stage = Stage::Spectral};
    storeSpectralSettings(settings, *command.settings);
    return Analyse(
        command,
        [&](SAdvProbe& copy, Progress& progress) {
            const SpectralRun run = spectralRunOf(settings, countedSamples(copy));
            command.settings->lastTruncationPoint = run.lags;
            if (settings.percentFlag != (settings.truncationMode == SpectralSettings::kPercentMode)) {
                // The number of one mode was read as the other one's: what counts is how many lags that made.
                SpectralDialogValues asRun = settings;
                asRun.truncationMode = SpectralSettings::kLagsMode;
                asRun.lags = run.lags;
                asRun.percentFlag = false;
                command.given = asRun;
            }
            return analyseSpectra(copy, run, progress);
        },
        [&] { return spectraReport(Probe()); });
}

Outcome CVorl_ADVDoc::CrossSpectralAnalysis() {
    const ProbeCommand command{
        .calculation = Calculation::CrossSpectral, .given = CrossSpectraGiven{}, .stage = Stage::CrossSpectral};
    return Analyse(
        command, [](SAdvProbe& copy, Progress& progress) { return analyseCrossSpectra(copy, progress); },
        [&] { return crossSpectraReport(Probe()); });
}

Outcome CVorl_ADVDoc::QuadrantsAnalysis(const QuadrantSettings& settings) {
    ProbeCommand command{
        .calculation = Calculation::Quadrants, .given = settings, .settings = Settings(), .stage = Stage::Quadrants};
    command.settings->quadrants = settings;
    return Analyse(
        command, [&](SAdvProbe& copy, Progress& progress) { return analyseQuadrants(copy, settings, progress); },
        [&] { return quadrantsReport(settings, Probe()); });
}

}  // namespace vorlan
