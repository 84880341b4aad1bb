// Steps that change the working record.
#include "batch/RecipeSteps.h"

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
    test.statistic = static_cast<ScoreStatistic>(values.choice(key));
    const bool minimum = test.statistic == ScoreStatistic::Minimum;
    const ScoreTest usual = key == "snr" ? EditingSettings().signalToNoise : EditingSettings().correlation;
    const std::string threshold = key + "_threshold";
    const double value = values.has(threshold) ? values.real(threshold)
                         : minimum             ? usual.minimumThreshold
                                               : usual.averageThreshold;
    (minimum ? test.minimumThreshold : test.averageThreshold) = value;
}

Outcome runEdit(StepContext& context, const StepValues& values) {
    EditingSettings settings = editingSettingsOf(context.document.Settings());
    setScoreTest(settings.correlation, values, "correlation");
    setScoreTest(settings.signalToNoise, values, "snr");
    settings.spikeFilter = values.has("spike_threshold");
    if (settings.spikeFilter) {
        settings.accelerationThreshold = values.real("spike_threshold");
    }
    settings.velocityTest = values.has("velocity_threshold");
    if (settings.velocityTest) {
        settings.velocityThreshold = values.real("velocity_threshold");
    }
    settings.treatment = static_cast<BadSampleTreatment>(values.choice("treatment"));
    return context.document.EditTimeSeries(settings);
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
    FilterSettings settings;
    settings.shape = static_cast<FilterShape>(values.choice("shape"));
    settings.type = values.has("type") ? static_cast<FilterType>(values.choice("type")) : defaultTypeOf(settings.shape);
    settings.halfWidth = values.real("half_width");
    settings.cutoff = values.real("cutoff");
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
         .keys = {choiceKey("correlation", {"average", "minimum"}), realKey("correlation_threshold", {}),
                  choiceKey("snr", {"average", "minimum"}), realKey("snr_threshold", {}),
                  realKey("spike_threshold", {}), realKey("velocity_threshold", {}),
                  choiceKey("treatment", {"interpolate", "remove"}, "interpolate")},
         .run = runEdit,
         .command = Command::EditingTimeSeries,
         .stage = Stage::PreProcessing,
         .faultOfValues = faultOfEdit},
        {.name = "filter",
         .keys = {choiceKey("shape", {"rectangle", "tukey", "gaussian", "bell"}, "tukey"),
                  choiceKey("type", {"low-pass", "high-pass", "band-pass", "band-cut"}), realKey("half_width", 10.0),
                  realKey("cutoff", 10.0)},
         .run = runFilter,
         .command = Command::DigitalFiltration,
         .faultOfValues = faultOfFilter},
    };
}

}  // namespace vorlan
