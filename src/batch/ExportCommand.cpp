#include "batch/Options.h"
#include "batch/Subcommands.h"
#include "recipes/ExportRun.h"
#include "recipes/Outputs.h"

namespace vorlan {

namespace {

struct ExportArguments {
    std::string input;
    std::string out;
    ProbePlace place;
    ExportRequest request;
    int kind = 0;
    int separator = 0;
};

void runExport(const ExportArguments& arguments, Console& console) {
    const std::string fault = faultOf(arguments.request);
    if (!fault.empty()) {
        throw usageError(fault);
    }
    requireOtherThanInput(arguments.out, arguments.input);
    requireOtherThanWorkspace(arguments.out);
    SilentPort port;
    CVorl_ADVDoc document(port);
    openDocument(document, arguments.input);
    std::string text;
    try {
        selectPlace(document, arguments.place);
        text = exportedText(document, arguments.request);
    } catch (const RunError& error) {
        throw RunError(error.status(), arguments.input + ": " + error.what());
    }
    writeOutput(arguments.out, text, console.out);
}

}  // namespace

Subcommand addExportCommand(CLI::App& program) {
    CLI::App* app = program.add_subcommand("export", "Write results as text, for other programs");
    const auto arguments = std::make_shared<ExportArguments>();
    addChoice(*app, "KIND", arguments->kind, exportNames(), choicesHelp("What to write", exportNames()))
        ->required()
        ->type_name("");
    needsName(app->add_option("--out", arguments->out, "The file to write; - is standard output"))
        ->required()
        ->type_name("OUT.dat");
    addPlace(*app, arguments->place);
    app->add_flag("--header", arguments->request.options.header, "Header lines first");
    app->add_flag("--time", arguments->request.options.time, "Time, lag and frequency columns first");
    addChoice(*app, "--separator", arguments->separator, separatorNames(), "What stands between the values")
        ->type_name("space|tab|comma")
        ->default_str("space");
    app->add_flag("--all", arguments->request.all, "All files and probes, for tables that have such a form");
    needsName(app->add_option("IN.avp", arguments->input, "The workspace to read"))->required()->type_name("");
    return {app, [arguments](Console& console) {
                arguments->request.kind = static_cast<ExportKind>(arguments->kind);
                arguments->request.options.separator = static_cast<Separator>(arguments->separator);
                runExport(*arguments, console);
                return ExitStatus::Done;
            }};
}

}  // namespace vorlan
