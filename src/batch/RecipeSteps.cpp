#include "batch/RecipeSteps.h"

#include <algorithm>

#include "batch/BatchError.h"

namespace vorlan {

const std::vector<StepSpec>& stepTable() {
    static const std::vector<StepSpec> table = [] {
        std::vector<StepSpec> rows;
        for (const std::vector<StepSpec>& part : {preProcessingSteps(), analysisSteps(), outputSteps()}) {
            rows.insert(rows.end(), part.begin(), part.end());
        }
        return rows;
    }();
    return table;
}

const StepSpec* stepNamed(const std::string& name) {
    const std::vector<StepSpec>& table = stepTable();
    const auto row = std::find_if(table.begin(), table.end(), [&](const StepSpec& spec) { return spec.name == name; });
    return row == table.end() ? nullptr : &*row;
}

std::optional<OutputPattern> outputOf(const StepValues& values) {
    return values.has("out") ? std::optional(OutputPattern(values.text("out"))) : std::nullopt;
}

bool writesForAllProbes(const StepValues& values) {
    return values.has("all") && values.boolean("all");
}

Outcome runStep(const StepSpec& spec, const StepValues& values, StepContext& context) {
    if (spec.stage) {
        selectStage(context.document, *spec.stage);
    }
    if (spec.command) {
        const std::string reason = disabledReason(context.document, *spec.command);
        if (!reason.empty()) {
            throw refusal(reason);
        }
    }
    return spec.run(context, values);
}

}  // namespace vorlan
