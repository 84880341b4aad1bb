#include "batch/Options.h"
#include "batch/Subcommands.h"
#include "batch/WorkspaceSummary.h"
#include "io/ReadFile.h"
#include "io/WorkspaceFile.h"
#include "model/Archive.h"
#include "recipes/Outputs.h"

namespace vorlan {

namespace {

struct InfoArguments {
    std::string input;
    bool json = false;
};

/// The text at the head of a workspace file; no more is read.
std::string versionOf(const std::string& path) {
    InputFile file(path);
    Archive archive = Archive::loading(file);
    std::string version;
    archive.value(version);
    return version;
}

std::string summaryOf(const InfoArguments& arguments) {
    try {
        const Workspace workspace = openWorkspace(arguments.input);
        const std::string version = versionOf(arguments.input);
        return arguments.json ? summaryAsJson(workspace, version) : summaryAsText(workspace, version, arguments.input);
    } catch (const FileError& error) {
        throw unreadable(textOf(error));
    }
}

}  // namespace

Subcommand addInfoCommand(CLI::App& program) {
    CLI::App* app = program.add_subcommand("info", "Show what a workspace holds");
    const auto arguments = std::make_shared<InfoArguments>();
    app->add_flag("--json", arguments->json, "As one JSON object, for other programs");
    needsName(app->add_option("IN.avp", arguments->input, "The workspace to read"))->required()->type_name("");
    return {app, [arguments](Console& console) {
                writeOutput(kStandardOutput, summaryOf(*arguments), console.out);
                return ExitStatus::Done;
            }};
}

}  // namespace vorlan
