#include "recipes/RecipeSteps.h"

#include <algorithm>

#include "recipes/RunError.h"

namespace vorlan {

const std::vector<StepKind>& stepTable() {
    static const std::vector<StepKind> table = [] {
        std::vector<StepKind> rows;
        for (const std::vector<StepKind>& part : {preProcessingSteps(), analysisSteps(), turbulenceSteps(), gridSteps(),
                                                  pageSteps(), frameSteps(), outputSteps()}) {
            rows.insert(rows.end(), part.begin(), part.end());
        }
        return rows;
    }();
    return table;
}

const StepKind* stepNamed(const std::string& name) {
    const std::vector<StepKind>& table = stepTable();
    const auto row = std::find_if(table.begin(), table.end(), [&](const StepKind& kind) { return kind.name == name; });
    return row == table.end() ? nullptr : &*row;
}

std::optional<OutputPattern> outputOf(const StepValues& values) {
    return values.has("out") ? std::optional(OutputPattern(values.text("out"))) : std::nullopt;
}

bool writesForAllProbes(const StepValues& values) {
    return values.has("all") && values.boolean("all");
}

Outcome runStep(const StepKind& kind, const StepValues& values, StepContext& context) {
    if (kind.stage) {
        selectStage(context.document, *kind.stage);
    }
    if (kind.command) {
        const std::string reason = commandState(context.document, *kind.command).reason;
        if (!reason.empty()) {
            throw refusal(reason);
        }
    }
    context.port.setStepRepeats(values.has("repeat") ? std::optional(values.boolean("repeat")) : std::nullopt);
    return kind.run(context, values);
}

}  // namespace vorlan
