// Steps of the stages after pre-processing.
#include "analysis/Quadrants.h"
#include "analysis/SpectralSettings.h"
#include "analysis/StorageOverflows.h"
#include "model/RangeText.h"
#include "recipes/RecipeSteps.h"
#include "recipes/StepsOfCommands.h"

namespace vorlan {

namespace {

Outcome runStationarity(StepContext& context, const StepValues& values) {
    const auto settings = settingsOf<StationaritySettings>(values);
    return context.refuses(refusalOf(settings)) ? Outcome::Refused : context.document.StationarityAnalysis(settings);
}

Outcome runDistributions(StepContext& context, const StepValues& values) {
    const auto settings = settingsOf<HistogramSettings>(values);
    return context.refuses(refusalOf(settings)) ? Outcome::Refused : context.document.Distributions(settings);
}

void tellAll(StepContext& context, const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
        context.port.tell(text);
    }
}

Outcome runSpectral(StepContext& context, const StepValues& values) {
    // The mode that is not used keeps its number.
    SpectralDialogValues settings = settingsOf(values, spectralSettingsOf(context.document.Settings()));
    settings.percentFlag = !values.has("lags");
    settings.truncationMode = settings.percentFlag ? SpectralSettings::kPercentMode : SpectralSettings::kLagsMode;
    if (settings.percentFlag && !values.has("percent")) {
        settings.percent = SpectralSettings().percent;
    }
    if (context.refuses(refusalOf(settings))) {
        return Outcome::Refused;
    }
    const Outcome outcome = context.document.SpectralAnalysis(settings);
    if (outcome == Outcome::Done) {
        tellAll(context, spectrumOverflows(context.document.Probe()));
    }
    return outcome;
}

std::string faultOfSpectral(const StepValues& values) {
    return values.has("percent") && values.has("lags") ? "give either \"percent\" or \"lags\"" : "";
}

Outcome runCrossSpectral(StepContext& context, const StepValues&) {
    const Outcome outcome = context.document.CrossSpectralAnalysis();
    if (outcome == Outcome::Done) {
        tellAll(context, crossSpectrumOverflows(context.document.Probe()));
    }
    return outcome;
}

Outcome runQuadrants(StepContext& context, const StepValues& values) {
    const auto settings = settingsOf<QuadrantSettings>(values);
    if (context.refuses(refusalOf(settings))) {
        return Outcome::Refused;
    }
    const Outcome outcome = context.document.QuadrantsAnalysis(settings);
    if (outcome == Outcome::Done && contributionSumsExceed(context.document.Probe())) {
        context.port.tell(kContributionsExceed);
    }
    return outcome;
}

Range meanVelocities() {
    const MeanVelocitySettings usual;
    return fieldOf(usual, usual.value).range;
}

Outcome runMeanVelocity(StepContext& context, const StepValues& values) {
    const MeanVelocitySettings before = context.document.Settings().meanVelocity;
    auto settings = settingsOf<MeanVelocitySettings>(values, before);
    // As in the dialog: what nobody uses is taken when it could be used, else the value stays.
    if (!meanVelocities().holds(settings.value)) {
        settings.value = before.value;
    }
    return context.document.SetMeanVelocity(settings);
}

std::string faultOfMeanVelocity(const StepValues& values) {
    const auto settings = settingsOf<MeanVelocitySettings>(values);
    const bool wrong = settings.mode == MeanVelocityMode::User && !meanVelocities().holds(settings.value);
    return wrong ? "\"value\" must be " + rangeText(meanVelocities()) : "";
}

}  // namespace

NamedStep stepOf(const StationaritySettings& settings) {
    return {"stationarity", valuesOf(settings)};
}

NamedStep stepOf(const HistogramSettings& settings) {
    return {"distributions", valuesOf(settings)};
}

NamedStep stepOf(const SpectralDialogValues& settings) {
    NamedStep step{"spectral", valuesOf<SpectralSettings>(settings)};
    // The number of the mode that was not used would choose it.
    step.values.remove(settings.percentFlag ? "lags" : "percent");
    return step;
}

NamedStep stepOf(const CrossSpectraGiven&) {
    return {"cross-spectral", {}};
}

NamedStep stepOf(const QuadrantSettings& settings) {
    return {"quadrants", valuesOf(settings)};
}

NamedStep stepOf(const MeanVelocitySettings& settings) {
    NamedStep step{"mean-velocity", {}};
    step.values.set("mode", asInt(settings.mode));
    step.values.set("value", settings.value);
    return step;
}

std::vector<StepKind> analysisSteps() {
    return {
        {.name = "stationarity",
         .keys = keysOf<StationaritySettings>(),
         .run = runStationarity,
         .command = Command::StationarityAnalysis},
        {.name = "distributions",
         .keys = keysOf<HistogramSettings>(),
         .run = runDistributions,
         .command = Command::Histograms},
        {.name = "spectral",
         .keys = withoutFallback(keysOf<SpectralSettings>(), {"percent", "lags"}),
         .run = runSpectral,
         .command = Command::SpectralAnalysis,
         .faultOfValues = faultOfSpectral},
        {.name = "cross-spectral", .keys = {}, .run = runCrossSpectral, .command = Command::CrossSpectralAnalysis},
        {.name = "quadrants",
         .keys = keysOf<QuadrantSettings>(),
         .run = runQuadrants,
         .command = Command::QuadrantsAnalysis},
        {.name = "mean-velocity",
         .keys = withoutRange(keysOf<MeanVelocitySettings>(), "value"),
         .run = runMeanVelocity,
         .command = Command::MeanVelocity,
         .faultOfValues = faultOfMeanVelocity,
         .onWorkspace = true},
    };
}

}  // namespace vorlan
