#include <map>
#include <set>

#include "batch/Interrupt.h"
#include "batch/Jobs.h"
#include "batch/Options.h"
#include "batch/RecipeRunner.h"
#include "batch/Subcommands.h"
#include "model/Index.h"

namespace vorlan {

namespace {

struct RunArguments {
    std::string recipe;
    std::string out;
    std::string outDir;
    std::vector<std::string> writeBelow;
    bool inPlace = false;
    int jobs = 1;
    int noRepeat = 0;  ///< 0 yes, 1 no
    bool progress = false;
    std::vector<std::string> inputs;
};

constexpr int kMostJobs = 256;

void requireOneTarget(const RunArguments& arguments, const Recipe& recipe) {
    const int targets =
        (arguments.out.empty() ? 0 : 1) + (arguments.outDir.empty() ? 0 : 1) + (arguments.inPlace ? 1 : 0);
    if (targets > 1) {
        throw usageError("--out, --out-dir and --in-place cannot be combined");
    }
    if (targets == 0 && !recipe.writesFiles()) {
        throw usageError("nothing would be written: give --out, --out-dir or --in-place");
    }
    if (!arguments.out.empty() && arguments.inputs.size() > 1) {
        throw usageError("--out takes one input; use --out-dir or --in-place for several");
    }
}

/// Where each input's workspace goes; empty paths when none is written.
std::vector<std::filesystem::path> targetsOf(const RunArguments& arguments) {
    std::vector<std::filesystem::path> targets;
    for (const std::string& input : arguments.inputs) {
        if (arguments.inPlace) {
            targets.emplace_back(input);
        } else if (!arguments.outDir.empty()) {
            targets.push_back(std::filesystem::path(arguments.outDir) / std::filesystem::path(input).filename());
        } else {
            targets.emplace_back(arguments.out);
        }
    }
    return targets;
}

/// Which input writes what, so that none writes over another.
class OutputOwners {
  public:
    void claim(const std::string& path, std::size_t input, const RunArguments& arguments) {
        const auto [owner, isNew] = owners_.emplace(identityOf(path), input);
        if (!isNew && owner->second != input) {
            throw usageError(path + " would be written for " + arguments.inputs[owner->second] + " and for " +
                             arguments.inputs[input]);
        }
    }

  private:
    std::map<std::string, std::size_t> owners_;
};

void requireDistinctOutputs(const RunArguments& arguments, const Recipe& recipe,
                            const std::vector<std::filesystem::path>& targets) {
    OutputOwners owners;
    std::set<std::string> inputs{identityOf(arguments.recipe)};
    std::vector<std::string> steps;
    for (std::size_t i = 0; i < arguments.inputs.size(); ++i) {
        inputs.insert(identityOf(arguments.inputs[i]));
        if (!targets[i].empty()) {
            if (!arguments.inPlace) {
                requireOtherThanInput(targets[i].string(), arguments.recipe);
                requireReplaceable(targets[i]);
            }
            owners.claim(targets[i].string(), i, arguments);
        }
        for (const RecipeStep& step : recipe.steps) {
            const std::optional<OutputPattern> output = outputOf(step.values);
            if (output && !output->isStandardOutput()) {
                steps.push_back(output->expandWorkspace(arguments.inputs[i]));
                owners.claim(steps.back(), i, arguments);
            }
            if (const std::optional<std::string> path = boundaryOutputOf(*step.kind, step.values)) {
                steps.push_back(*path);
                owners.claim(*path, i, arguments);
            }
        }
    }
    for (const std::string& path : steps) {
        if (inputs.count(identityOf(path)) != 0) {
            throw usageError(path + " is an input and would be overwritten");
        }
    }
    for (std::size_t i = 0; i < targets.size() && !arguments.outDir.empty(); ++i) {
        if (inputs.count(identityOf(targets[i])) != 0) {
            throw usageError(targets[i].string() +
                             " is an input and would be overwritten; --in-place does that on purpose");
        }
    }
}

/// The folders that the command line names, beside that of the input.
OutputFolders foldersOf(const RunArguments& arguments) {
    OutputFolders folders;
    for (const std::string& folder : arguments.writeBelow) {
        folders.add(folder);
    }
    folders.add(std::filesystem::path(arguments.recipe).parent_path());
    folders.add(arguments.outDir);
    folders.add(std::filesystem::path(arguments.out).parent_path());
    return folders;
}

void requireFolder(const std::string& folder) {
    std::error_code error;
    if (!folder.empty() && !std::filesystem::is_directory(folder, error)) {
        throw unwritable(folder + ": there is no such folder");
    }
}

ExitStatus runAll(const RunArguments& arguments, Console& console) {
    const Recipe recipe = loadRecipe(arguments.recipe);
    requireOneTarget(arguments, recipe);
    const std::vector<std::filesystem::path> targets = targetsOf(arguments);
    requireDistinctOutputs(arguments, recipe, targets);
    requireFolder(arguments.outDir);
    const OutputFolders folders = foldersOf(arguments);

    const int count = asInt(arguments.inputs.size());
    const bool processes = arguments.jobs > 1 && count > 1;
    // Lines of several workers at once would only be noise on a terminal.
    const ConsolePort::Options options{arguments.noRepeat == 0,
                                       arguments.progress || (console.errIsTerminal && !processes)};
    const auto task = [&](int index, Console& own) {
        const auto i = asSize(index);
        runRecipe(recipe, arguments.inputs[i], targets[i], folders, options, own);
    };
    if (processes) {
        const InterruptWatch watch;
        return runInProcesses(count, arguments.jobs, console, task);
    }
    ExitStatus worst = ExitStatus::Done;
    for (int i = 0; i < count && worst != ExitStatus::Interrupted; ++i) {
        worst = worse(worst, guarded(console, [&](Console& own) { task(i, own); }));
    }
    return worst;
}

}  // namespace

Subcommand addRunCommand(CLI::App& program) {
    CLI::App* app = program.add_subcommand("run", "Apply a recipe to workspaces");
    const auto arguments = std::make_shared<RunArguments>();
    needsName(app->add_option("--recipe", arguments->recipe, "The steps to do, a TOML file"))
        ->required()
        ->type_name("RECIPE.toml");
    addWorkspaceOutput(*app, arguments->out, "The workspace to write, for one input");
    needsName(
        app->add_option("--out-dir", arguments->outDir, "An existing folder for the workspaces, under their own names"))
        ->type_name("DIR");
    needsName(app->add_option("--write-below", arguments->writeBelow,
                              "Another folder that steps of the recipe may write into; may be repeated"))
        ->type_name("DIR")
        ->allow_extra_args(false);
    app->add_flag("--in-place", arguments->inPlace, "Write every workspace over its input");
    app->add_option("--jobs", arguments->jobs, "Workspaces to work on at once")
        ->type_name("N")
        ->check(CLI::Range(1, kMostJobs).description(""))
        ->capture_default_str();
    addChoice(*app, "--repeat", arguments->noRepeat, {"yes", "no"},
              "Repeat the stages that are done when a step changes the record")
        ->type_name("yes|no")
        ->default_str("yes");
    app->add_flag("--progress", arguments->progress, "Show progress even when standard error is not a terminal");
    needsName(app->add_option("IN.avp", arguments->inputs, "The workspaces to read"))->required()->type_name("");
    return {app, [arguments](Console& console) { return runAll(*arguments, console); }};
}

}  // namespace vorlan
