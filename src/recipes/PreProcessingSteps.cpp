// Steps that change the working record.
#include "analysis/FilterSettings.h"
#include "recipes/RecipeSteps.h"
#include "recipes/StepsOfCommands.h"

namespace vorlan {

namespace {

Outcome runReset(StepContext& context, const StepValues&) {
    return context.document.ResetTimeSeries();
}

Outcome runZoom(StepContext& context, const StepValues&) {
    return context.document.EnterZoomMode();
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

/// The values of a test of scores, none where it is off.
void giveScoreTest(const ScoreTest& test, StepValues& values, const std::string& key) {
    if (test.on) {
        values.set(key + "_threshold", test.threshold());
    } else {
        values.remove(key);
    }
}

/// The keys of a step that changes the working series.
std::vector<KeyRule> changing(std::vector<KeyRule> keys) {
    keys.push_back(booleanKey("repeat", {}));
    return keys;
}

}  // namespace

NamedStep stepOf(const ZoomGiven&) {
    return {"zoom", {}};
}

NamedStep stepOf(const ResetGiven&) {
    return {"reset", {}};
}

NamedStep stepOf(const ClipGiven& clip) {
    NamedStep step{"clip", {}};
    step.values.set("from", clip.from);
    step.values.set("to", clip.to);
    return step;
}

NamedStep stepOf(const RotationSettings& settings) {
    NamedStep step{"rotate", {}};
    step.values.set("heading", settings.heading);
    step.values.set("pitch", settings.pitch);
    step.values.set("roll", settings.roll);
    step.values.set("position", settings.position);
    return step;
}

NamedStep stepOf(const EditingSettings& settings) {
    NamedStep step{"edit", valuesOf(settings)};
    giveScoreTest(settings.correlation, step.values, "correlation");
    giveScoreTest(settings.signalToNoise, step.values, "snr");
    if (!settings.spikeFilter) {
        step.values.remove("spike_threshold");
    }
    if (!settings.velocityTest) {
        step.values.remove("velocity_threshold");
    }
    return step;
}

NamedStep stepOf(const FilterSettings& settings) {
    return {"filter", valuesOf(settings)};
}

std::vector<StepKind> preProcessingSteps() {
    return {
        {.name = "reset",
         .keys = changing({}),
         .run = runReset,
         .command = Command::ResetTimeSeries,
         .stage = Stage::PreProcessing},
        {.name = "zoom",
         .keys = {},
         .run = runZoom,
         .command = Command::ZoomAndClipping,
         .stage = Stage::PreProcessing},
        {.name = "clip",
         .keys = changing({required(realKey("from", {})), required(realKey("to", {}))}),
         .run = runClip,
         .command = Command::ZoomAndClipping,
         .stage = Stage::PreProcessing},
        {.name = "rotate",
         .keys =
             changing({realKey("heading", 0.0), realKey("pitch", 0.0), realKey("roll", 0.0), tripleKey("position")}),
         .run = runRotate,
         .command = Command::CoordinateSystem,
         .stage = Stage::PreProcessing},
        {.name = "edit",
         .keys = changing(editKeys()),
         .run = runEdit,
         .command = Command::EditingTimeSeries,
         .stage = Stage::PreProcessing,
         .faultOfValues = faultOfEdit},
        {.name = "filter",
         .keys = changing(withoutFallback(keysOf<FilterSettings>(), {"type"})),
         .run = runFilter,
         .command = Command::DigitalFiltration,
         .faultOfValues = faultOfFilter},
    };
}

}  // namespace vorlan
