// Steps that change the working record.
#include "analysis/FilterSettings.h"
#include "recipes/RecipeSteps.h"

namespace vorlan {

namespace {

Outcome runReset(StepContext& context, const StepValues&) {
    return context.document.ResetTimeSeries();
}

Outcome runClip(StepContext& context, const StepValues& values) {
    return context.document.Clip(values.real("from"), values.real("to"));
}

Outcome runRotate(StepContext& context, const StepValues& values) {
    RotationSettings settings = rotationSettingsOf(context.document.Probe());
    settings.heading = values.real("heading");
    settings.pitch = values.real("pitch");
    settings.roll = values.real("roll");
    if (values.has("position")) {
        settings.position = values.triple("position");
    }
    return context.document.ChangeCoordinateSystem(settings);
}

void setScoreTest(ScoreTest& test, const StepValues& values, const std::string& key) {
    test.on = values.has(key);
    if (!test.on) {
        return;
    }
    const bool minimum = test.statistic == ScoreStatistic::Minimum;
    const ScoreTest usual = key == "snr" ? EditingSettings().signalToNoise : EditingSettings().correlation;
    const std::string threshold = key + "_threshold";
    const double value = values.has(threshold) ? values.real(threshold)
                         : minimum             ? usual.minimumThreshold
                                               : usual.averageThreshold;
    (minimum ? test.minimumThreshold : test.averageThreshold) = value;
}

Outcome runEdit(StepContext& context, const StepValues& values) {
    EditingSettings settings = settingsOf(values, usable(context.document.Settings().editing));
    setScoreTest(settings.correlation, values, "correlation");
    setScoreTest(settings.signalToNoise, values, "snr");
    settings.spikeFilter = values.has("spike_threshold");
    settings.velocityTest = values.has("velocity_threshold");
    return context.document.EditTimeSeries(settings);
}

std::vector<KeyRule> editKeys() {
    std::vector<KeyRule> keys =
        withoutFallback(keysOf<EditingSettings>(), {"correlation", "snr", "spike_threshold", "velocity_threshold"});
    for (const char* score : {"correlation_threshold", "snr_threshold"}) {
        keys.push_back(realKey(score, {}));
    }
    return keys;
}

std::string faultOfEdit(const StepValues& values) {
    for (const std::string key : {"correlation", "snr"}) {
        if (values.has(key + "_threshold") && !values.has(key)) {
            return "\"" + key + "_threshold\" does nothing without \"" + key + "\"";
        }
    }
    return {};
}

FilterSettings filterSettingsOf(const StepValues& values) {
    auto settings = settingsOf<FilterSettings>(values);
    if (!values.has("type")) {
        settings.type = defaultTypeOf(settings.shape);
    }
    return settings;
}

Outcome runFilter(StepContext& context, const StepValues& values) {
    const FilterSettings settings = filterSettingsOf(values);
    return context.refuses(refusalOf(settings)) ? Outcome::Refused : context.document.FilterTimeSeries(settings);
}

std::string faultOfFilter(const StepValues& values) {
    const FilterSettings settings = filterSettingsOf(values);
    return allowsType(settings.shape, settings.type) ? "" : "this shape has no filter of this type";
}

}  // namespace

std::vector<StepKind> preProcessingSteps() {
    return {
        {.name = "reset",
         .keys = {},
         .run = runReset,
         .command = Command::ResetTimeSeries,
         .stage = Stage::PreProcessing},
        {.name = "clip",
         .keys = {required(realKey("from", {})), required(realKey("to", {}))},
         .run = runClip,
         .command = Command::ZoomAndClipping,
         .stage = Stage::PreProcessing},
        {.name = "rotate",
         .keys = {realKey("heading", 0.0), realKey("pitch", 0.0), realKey("roll", 0.0), tripleKey("position")},
         .run = runRotate,
         .command = Command::CoordinateSystem,
         .stage = Stage::PreProcessing},
        {.name = "edit",
         .keys = editKeys(),
         .run = runEdit,
         .command = Command::EditingTimeSeries,
         .stage = Stage::PreProcessing,
         .faultOfValues = faultOfEdit},
        {.name = "filter",
         .keys = withoutFallback(keysOf<FilterSettings>(), {"type"}),
         .run = runFilter,
         .command = Command::DigitalFiltration,
         .faultOfValues = faultOfFilter},
    };
}

}  // namespace vorlan
