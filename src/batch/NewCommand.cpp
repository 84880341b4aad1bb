#include "batch/Options.h"
#include "batch/Subcommands.h"
#include "recipes/Outputs.h"

namespace vorlan {

Subcommand addNewCommand(CLI::App& program) {
    CLI::App* app = program.add_subcommand("new", "Make an empty workspace");
    const auto path = std::make_shared<std::string>();
    app->add_option_function<std::string>(
           "OUT.avp",
           [path](const std::string& text) {
               if (text.empty() || text == kStandardOutput) {
                   throw CLI::ValidationError("OUT.avp", "a workspace needs a file name");
               }
               *path = text;
           },
           "The workspace to write; an existing one is replaced")
        ->required()
        ->type_name("");
    return {app, [path](Console&) {
                requireReplaceable(*path);
                SilentPort port;
                CVorl_ADVDoc document(port);
                saveDocument(document, *path);
                return ExitStatus::Done;
            }};
}

}  // namespace vorlan
