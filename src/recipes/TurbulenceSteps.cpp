// Steps that read turbulence quantities off spectral results, as the tools of the window do.
#include "model/Index.h"
#include "recipes/RecipeSteps.h"
#include "recipes/RunError.h"
#include "recipes/StepsOfCommands.h"

namespace vorlan {

namespace {

/// Nothing of the selection counts here: the numbers of the step stand for what the mouse reads off a pane.
void requireSpectra(const CVorl_ADVDoc& document) {
    if (!document.Probe().IsDone(DoneMark::Spectral)) {
        throw refusal("this probe has no spectral analysis yet");
    }
}

Outcome runDissipation(StepContext& context, const StepValues& values) {
    requireSpectra(context.document);
    context.port.setAccepts(values.boolean("accept"));
    return context.document.ExtractDissipationRate(
        {static_cast<DissipationSource>(values.choice("on")), values.real("x"), values.real("y")});
}

Outcome runScales(StepContext& context, const StepValues& values) {
    requireSpectra(context.document);
    context.port.setAccepts(values.boolean("accept"));
    const ScalesReading reading{static_cast<ScalesSource>(values.choice("on")), values.real("from"), values.real("to")};
    const Outcome outcome = context.document.ExtractScales(reading);
    // Limits with nothing between them are an error on spectra only.
    return outcome == Outcome::Refused && reading.source == ScalesSource::Correlation ? Outcome::Done : outcome;
}

}  // namespace

NamedStep stepOf(const DissipationReading& reading) {
    NamedStep step{"dissipation", {}};
    step.values.set("on", asInt(reading.source));
    step.values.set("x", reading.x);
    step.values.set("y", reading.y);
    return step;
}

NamedStep stepOf(const ScalesReading& reading) {
    NamedStep step{"scales", {}};
    step.values.set("on", asInt(reading.source));
    step.values.set("from", reading.from);
    step.values.set("to", reading.to);
    return step;
}

std::vector<StepKind> turbulenceSteps() {
    return {
        {.name = "dissipation",
         .keys = {required(choiceKey("on", {"spectrum", "structure"})), required(realKey("x", {})),
                  required(realKey("y", {})), booleanKey("accept", true)},
         .run = runDissipation},
        {.name = "scales",
         .keys = {required(choiceKey("on", {"correlation", "spectrum"})), required(realKey("from", {})),
                  required(realKey("to", {})), booleanKey("accept", true)},
         .run = runScales},
    };
}

}  // namespace vorlan
