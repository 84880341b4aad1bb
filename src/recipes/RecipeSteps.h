#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/CVorl_ADVDoc.h"
#include "app/CommandState.h"
#include "app/GridEditor.h"
#include "recipes/Outputs.h"
#include "recipes/RecipeKeys.h"
#include "recipes/RecipePort.h"
#include "recipes/RenderRun.h"

namespace vorlan {

/// What a step works on: the selected probe of the document.
struct StepContext {
    CVorl_ADVDoc& document;
    RecipePort& port;
    PendingOutputs& outputs;
    Renderer& renderer;
    std::filesystem::path workspace;  ///< the input
    ProbePlace place;
    GridEditor& grid;  ///< current boundary and node of the run

    /// What a dialog does with parameters that it does not accept: says why, and true.
    bool refuses(const Refusal& refusal) {
        if (!refusal.empty()) {
            port.refuse(refusal.text);
        }
        return !refusal.empty();
    }
};

/// One kind of step: a row of the table.
struct StepKind {
    std::string name;
    std::vector<KeyRule> keys;
    /// Does the step. Refusals of the document go through its port; RunError Refused for the step's own.
    Outcome (*run)(StepContext& context, const StepValues& values);
    /// The command behind the step; none for steps that ask for themselves.
    std::optional<Command> command = std::nullopt;
    /// Where the window offers the command.
    std::optional<Stage> stage = std::nullopt;
    /// What is wrong with keys that are right one by one; empty when nothing is.
    std::string (*faultOfValues)(const StepValues& values) = nullptr;
    /// Acts on the workspace: it is run once, with the first selected probe or without any.
    bool onWorkspace = false;
};

/// The rows by subject.
std::vector<StepKind> preProcessingSteps();
std::vector<StepKind> analysisSteps();
std::vector<StepKind> turbulenceSteps();
std::vector<StepKind> gridSteps();
std::vector<StepKind> pageSteps();
std::vector<StepKind> outputSteps();
std::vector<StepKind> frameSteps();

/// All steps, in the order of the manual.
const std::vector<StepKind>& stepTable();
/// Null for an unknown name.
const StepKind* stepNamed(const std::string& name);

/// The file that a step of these values writes; empty for steps that write none.
std::optional<OutputPattern> outputOf(const StepValues& values);
/// The boundary file that a step of these values writes, as far as the recipe names it.
std::optional<std::string> boundaryOutputOf(const StepKind& kind, const StepValues& values);
/// True when the step writes the same file whatever probe it is run for.
bool writesForAllProbes(const StepValues& values);

/// Selects the step's stage, makes sure that its command is enabled and runs it.
Outcome runStep(const StepKind& kind, const StepValues& values, StepContext& context);

}  // namespace vorlan
