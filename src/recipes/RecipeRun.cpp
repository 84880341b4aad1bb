#include "recipes/RecipeRun.h"

#include <algorithm>
#include <map>
#include <numeric>

#include "model/Index.h"
#include "model/Printable.h"
#include "recipes/RunError.h"

namespace vorlan {

namespace {

/// The selected indexes of count things, from 0.
std::vector<int> selected(const std::optional<std::vector<int>>& numbers, int count) {
    std::vector<int> indexes;
    if (!numbers) {
        indexes.resize(asSize(count));
        std::iota(indexes.begin(), indexes.end(), 0);
        return indexes;
    }
    for (const int number : *numbers) {
        indexes.push_back(number - 1);
    }
    return indexes;
}

std::vector<ProbePlace> selectedPlaces(const Recipe& recipe, const Workspace& workspace) {
    const SAdvFilesArray& files = workspace.dataFiles.files;
    std::vector<ProbePlace> places;
    for (const int file : selected(recipe.files, files.GetSize())) {
        const int probes = file < files.GetSize() ? files.GetAt(file).probes.GetSize() : 0;
        if (file >= files.GetSize()) {
            requireProbe(workspace, {file, 0});
        }
        for (const int probe : selected(recipe.probes, probes)) {
            requireProbe(workspace, {file, probe});
            places.push_back({file, probe});
        }
    }
    return places;
}

/// One step must not overwrite what another step, or the same one for another probe, has written, and none a workspace,
/// be it there or still to be written as target.
void requireFreeOutputs(const Recipe& recipe, const std::filesystem::path& input, const std::filesystem::path& target,
                        const OutputFolders& folders, const std::vector<ProbePlace>& places) {
    std::map<std::string, const RecipeStep*> writers;
    for (const ProbePlace& place : places) {
        for (const RecipeStep& step : recipe.steps) {
            const std::optional<OutputPattern> output = outputOf(step.values);
            if (!output || output->isStandardOutput()) {
                continue;
            }
            const std::string path = output->expand(input, place);
            folders.require(path);
            const auto [earlier, isNew] = writers.emplace(identityOf(path), &step);
            const bool sameTable = earlier->second == &step && writesForAllProbes(step.values);
            if (!isNew && !sameTable) {
                throw usageError(path + " would be written more than once; {file} and {probe} in \"out\" (line " +
                                 std::to_string(step.line) + " of the recipe) keep the probes apart");
            }
            if (!target.empty() && identityOf(path) == identityOf(target)) {
                throw usageError(path + " is the workspace that the run writes: the step needs another name");
            }
            requireOtherThanWorkspace(path);
        }
    }
    for (const RecipeStep& step : recipe.steps) {
        const std::optional<std::string> path = boundaryOutputOf(*step.kind, step.values);
        if (!path) {
            continue;
        }
        folders.require(*path);
        if (writers.count(identityOf(*path)) != 0 || (!target.empty() && identityOf(*path) == identityOf(target))) {
            throw usageError(*path + " would be written more than once: a boundary needs another name");
        }
        requireOtherThanWorkspace(*path);
    }
}

}  // namespace

RecipeRun::RecipeRun(CVorl_ADVDoc& document, RecipePort& port, std::filesystem::path input, PicturesSource pictures,
                     OutputFolders folders)
    : document_(document),
      port_(port),
      input_(std::move(input)),
      folders_(std::move(folders)),
      renderer_(std::move(pictures)) {
    folders_.add(".");
    folders_.add(input_.parent_path());
    port_.setContext(printable(input_.string()));
    document_.SetBoundaryStorage(boundaries_);
}

void RecipeRun::apply(const Recipe& recipe, const std::filesystem::path& target) {
    const std::vector<ProbePlace> places = placesOf(recipe, target);
    const WorkspaceSettings loaded = document_.Settings();
    grid_.emplace(document_);
    for (std::size_t p = 0; p < std::max<std::size_t>(places.size(), 1); ++p) {
        for (std::size_t i = 0; i < recipe.steps.size(); ++i) {
            const RecipeStep& step = recipe.steps[i];
            if (step.kind->onWorkspace ? p == 0 : !places.empty()) {
                applyStep(step, i + 1, places.empty() ? std::nullopt : std::optional(places[p]));
            }
        }
    }
    document_.RestoreSelection(loaded);
}

std::vector<ProbePlace> RecipeRun::placesOf(const Recipe& recipe, const std::filesystem::path& target) {
    try {
        const std::vector<ProbePlace> places = selectedPlaces(recipe, document_.GetWorkspace());
        requireFreeOutputs(recipe, input_, target, folders_, places);
        const auto needsProbe = [](const RecipeStep& step) { return !step.kind->onWorkspace; };
        if (places.empty() && std::any_of(recipe.steps.begin(), recipe.steps.end(), needsProbe)) {
            port_.tell("there is no probe to work on");
        }
        return places;
    } catch (const RunError& error) {
        throw RunError(error.status(), input_.string() + ": " + error.what());
    }
}

void RecipeRun::applyStep(const RecipeStep& step, std::size_t number, const std::optional<ProbePlace>& place) {
    const std::string where = place && !step.kind->onWorkspace ? describe(*place) + ", " : "";
    port_.setContext(printable(input_.string()) + ": " + where + "step " + std::to_string(number) + " (" +
                     step.kind->name + ")");
    StepContext context{document_, port_, outputs_, renderer_, input_, place.value_or(ProbePlace{}), grid_.value()};
    Outcome outcome = Outcome::Done;
    try {
        if (place) {
            selectPlace(document_, *place);
        }
        outcome = runStep(*step.kind, step.values, context);
    } catch (const RunError& error) {
        throw RunError(error.status(), port_.context() + ": " + error.what());
    }
    const bool said = port_.takeRefused();
    if (port_.stopped()) {
        throw RunError(ExitStatus::Interrupted, port_.context() + ": interrupted");
    }
    if (outcome == Outcome::Refused) {
        throw refusal(said ? "" : port_.context() + ": refused");
    }
    if (outcome == Outcome::Cancelled || outcome == Outcome::Unchanged) {
        port_.tell("nothing was changed");
    }
}

}  // namespace vorlan
