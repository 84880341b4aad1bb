#include <algorithm>

#include "batch/ConsolePort.h"
#include "batch/LoadPictures.h"
#include "batch/Options.h"
#include "batch/Subcommands.h"
#include "model/Index.h"
#include "model/Text.h"
#include "recipes/Outputs.h"
#include "recipes/RecipeKeys.h"
#include "recipes/RenderRun.h"

namespace vorlan {

namespace {

constexpr int kAll = -1;

struct ReportArguments {
    std::string input;
    std::string out;
    std::vector<int> stages;  ///< empty: all
    int paper = kUsualPaper;
    bool landscape = false;
    ProbePlace place{kAll, kAll};
};

std::vector<int> stagesOf(const std::string& list) {
    std::vector<int> stages;
    for (const std::string& name : splitText(list, ',')) {
        const auto at = std::find(stageNames().begin(), stageNames().end(), name);
        if (at == stageNames().end()) {
            throw CLI::ValidationError("--stages", "\"" + name + "\" is not " + listed(stageNames()));
        }
        stages.push_back(asInt(at - stageNames().begin()));
    }
    return stages;
}

std::vector<std::pair<int, int>> selectedProbes(const Workspace& workspace, const ProbePlace& place) {
    if (place.file != kAll) {
        requireProbe(workspace, {place.file, std::max(place.probe, 0)});
    }
    std::vector<std::pair<int, int>> probes = allProbes(workspace);
    std::erase_if(probes, [&](const auto& at) {
        return (place.file != kAll && at.first != place.file) || (place.probe != kAll && at.second != place.probe);
    });
    if (probes.empty()) {
        throw refusal("no data file has such a probe");
    }
    return probes;
}

std::vector<ReportPage> pagesOf(const ReportArguments& arguments, const Workspace& workspace) {
    std::vector<ReportPage> pages = pagesOfProbes(workspace, selectedProbes(workspace, arguments.place));
    std::erase_if(pages, [&](const ReportPage& page) {
        const std::vector<int>& stages = arguments.stages;
        return !stages.empty() && std::find(stages.begin(), stages.end(), asInt(page.stage)) == stages.end();
    });
    if (pages.empty()) {
        throw refusal("no probe that is selected has one of these stages");
    }
    return pages;
}

void runReport(const ReportArguments& arguments, Console& console) {
    requireOtherThanInput(arguments.out, arguments.input);
    requireOtherThanWorkspace(arguments.out);
    ConsolePort port(console, {.showProgress = console.errIsTerminal});
    port.setContext(arguments.input);
    CVorl_ADVDoc document(port);
    openDocument(document, arguments.input);
    Renderer renderer(loadPictures);
    std::string bytes;
    try {
        const Workspace& workspace = document.GetWorkspace();
        const std::vector<ReportPage> pages = pagesOf(arguments, workspace);
        bytes = renderer.report(workspace, utf8Text(document.GetPath().stem().string()), pages,
                                paperOf(arguments.paper, arguments.landscape), [&](std::size_t page) {
                                    port.status(formatted("page %zu of %zu", page + 1, pages.size()));
                                });
        port.endRun();
    } catch (const RunError& error) {
        throw RunError(error.status(), arguments.input + ": " + error.what());
    }
    writeOutput(arguments.out, bytes, console.out);
}

}  // namespace

Subcommand addReportCommand(CLI::App& program) {
    CLI::App* app = program.add_subcommand("report", "Print the stages of many probes into one PDF");
    const auto arguments = std::make_shared<ReportArguments>();
    app->add_option("--out", arguments->out, "The document to write")->required()->type_name("OUT.pdf");
    app->add_option_function<std::string>(
           "--stages", [arguments](const std::string& text) { arguments->stages = stagesOf(text); },
           "Names of stages with commas between them, as render has them;\nall that are done without it")
        ->type_name("LIST");
    addPaper(*app, arguments->paper, arguments->landscape);
    addPlace(*app, arguments->place, "all");
    app->add_option("IN.avp", arguments->input, "The workspace to read")->required()->type_name("");
    return {app, [arguments](Console& console) {
                runReport(*arguments, console);
                return ExitStatus::Done;
            }};
}

}  // namespace vorlan
