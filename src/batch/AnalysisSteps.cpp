// Steps of the stages after pre-processing.
#include "batch/RecipeSteps.h"

namespace vorlan {

namespace {

Outcome runStationarity(StepContext& context, const StepValues& values) {
    const StationaritySettings settings{static_cast<BandMode>(values.choice("mode")), values.integer("bands")};
    return context.refuses(refusalOf(settings)) ? Outcome::Refused : context.document.StationarityAnalysis(settings);
}

Outcome runDistributions(StepContext& context, const StepValues& values) {
    const HistogramSettings settings{values.integer("grades"), values.integer("bar_width"), values.boolean("normal")};
    return context.refuses(refusalOf(settings)) ? Outcome::Refused : context.document.Distributions(settings);
}

Outcome runSpectral(StepContext& context, const StepValues& values) {
    constexpr int kUnitButtons[] = {1, 0};  // hz, rad/s
    // The mode that is not used keeps its number.
    SpectralSettings settings = spectralSettingsOf(context.document.Settings());
    settings.windowButton = values.choice("window");
    settings.unitButton = kUnitButtons[values.choice("unit")];
    settings.percentFlag = !values.has("lags");
    settings.truncationMode = settings.percentFlag ? 0 : 1;
    if (!settings.percentFlag) {
        settings.lags = values.integer("lags");
    } else {
        settings.percent = values.has("percent") ? values.integer("percent") : SpectralSettings().percent;
    }
    return context.refuses(refusalOf(settings)) ? Outcome::Refused : context.document.SpectralAnalysis(settings);
}

std::string faultOfSpectral(const StepValues& values) {
    return values.has("percent") && values.has("lags") ? "give either \"percent\" or \"lags\"" : "";
}

Outcome runCrossSpectral(StepContext& context, const StepValues&) {
    return context.document.CrossSpectralAnalysis();
}

Outcome runQuadrants(StepContext& context, const StepValues& values) {
    QuadrantSettings settings;
    settings.increment = values.real("increment");
    settings.maximum = values.real("maximum");
    settings.ejectionThreshold = values.real("ejection");
    settings.sweepThreshold = values.real("sweep");
    settings.maximumLag = values.real("lag");
    settings.stressType = values.choice("stress");
    return context.refuses(refusalOf(settings)) ? Outcome::Refused : context.document.QuadrantsAnalysis(settings);
}

Outcome runMeanVelocity(StepContext& context, const StepValues& values) {
    return context.document.SetMeanVelocity({values.choice("mode"), values.real("value")});
}

}  // namespace

std::vector<StepKind> analysisSteps() {
    return {
        {.name = "stationarity",
         .keys = {choiceKey("mode", {"fixed", "cumulative"}, "fixed"), integerKey("bands", 10)},
         .run = runStationarity,
         .command = Command::StationarityAnalysis},
        {.name = "distributions",
         .keys = {integerKey("grades", 20), within(integerKey("bar_width", 90), 0, 100), booleanKey("normal", true)},
         .run = runDistributions,
         .command = Command::Histograms},
        {.name = "spectral",
         .keys = {choiceKey("window", {"rectangle", "bartlett", "tukey", "parzen"}, "tukey"),
                  choiceKey("unit", {"hz", "rad/s"}, "hz"), within(integerKey("percent", {}), 0, 50),
                  integerKey("lags", {})},
         .run = runSpectral,
         .command = Command::SpectralAnalysis,
         .faultOfValues = faultOfSpectral},
        {.name = "cross-spectral", .keys = {}, .run = runCrossSpectral, .command = Command::CrossSpectralAnalysis},
        {.name = "quadrants",
         .keys = {realKey("increment", 0.2), realKey("maximum", 20.0), realKey("ejection", 1.0), realKey("sweep", 2.0),
                  realKey("lag", 10.0), choiceKey("stress", {"uv", "uw", "vw"}, "uw")},
         .run = runQuadrants,
         .command = Command::QuadrantsAnalysis},
        {.name = "mean-velocity",
         .keys = {choiceKey("mode", {"averaged", "user"}, "averaged"),
                  within(realKey("value", 10.0), MeanVelocitySettings::kMinimum, MeanVelocitySettings::kMaximum)},
         .run = runMeanVelocity,
         .command = Command::MeanVelocity},
    };
}

}  // namespace vorlan
