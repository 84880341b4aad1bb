#include "app/TableImport.h"
#include "batch/Options.h"
#include "batch/Subcommands.h"
#include "io/DelimitedTable.h"
#include "io/TableText.h"
#include "model/Text.h"
#include "recipes/Outputs.h"
#include "recipes/RecipeKeys.h"
#include "recipes/TextValues.h"

namespace vorlan {

namespace {

struct ImportOptions {
    std::string out;
    bool append = false;
    int missing = 0;  ///< 0 error, 1 mark
    std::vector<std::string> tables;
    TableImport import;
};

void tellUnused(const std::string& path, const std::vector<std::string>& columns, Console& console) {
    constexpr std::size_t kMostNamed = 10;
    if (columns.empty()) {
        return;
    }
    std::vector<std::string> names;
    for (std::size_t i = 0; i < std::min(columns.size(), kMostNamed); ++i) {
        names.push_back(shownField(utf8Text(columns[i])));
    }
    if (columns.size() > kMostNamed) {
        names.push_back(std::to_string(columns.size() - kMostNamed) + " more");
    }
    console.complain(
        path + (columns.size() == 1 ? ": column " + names[0] + " is" : ": columns " + listed(names, "and") + " are") +
        " not used");
}

std::vector<SAdvFile> readFiles(const ImportOptions& options, Console& console) {
    try {
        return importTables(options.import,
                            [&](const std::filesystem::path& table, const std::vector<std::string>& columns) {
                                tellUnused(table.string(), columns, console);
                            });
    } catch (const FileError& error) {
        throw unreadable(textOf(error));
    }
}

void addTableOptions(CLI::App& app, ImportOptions& options) {
    app.add_option_function<std::string>(
           "--columns",
           [&options](const std::string& text) {
               const std::string fault = refusalOfColumnList(text);
               if (!fault.empty()) {
                   throw CLI::ValidationError("--columns", fault);
               }
               options.import.table.columns = text;
           },
           "Names of the columns with commas between them, - for one to skip:\nu,v,w (required), cor1,cor2,cor3, "
           "snr1,snr2,snr3,\nheading,pitch,roll, pressure; without it the first line names them")
        ->type_name("LIST");
    addReal(app, "--resolution", options.import.settings.resolution, import_range::kResolution, "R",
            "Step in which velocities are stored, cm/s (1e-9 to 1000); everything\nelse takes 0.001")
        ->default_str(shown(options.import.settings.resolution));
    addChoice(app, "--missing", options.missing, {"error", "mark"},
              "An empty or NaN velocity is an error, or (mark) its sample gets\nmark 0 and the straight line between "
              "its neighbours")
        ->type_name("error|mark")
        ->default_str("error");
}

}  // namespace

Subcommand addImportCommand(CLI::App& program) {
    CLI::App* app = program.add_subcommand("import", "Make a workspace from delimited text");
    const auto options = std::make_shared<ImportOptions>();
    addWorkspaceOutput(*app, options->out, "The workspace to write")->required();
    app->add_flag("--append", options->append, "Add the records to that workspace as further data files");
    addReal(*app, "--interval", options->import.settings.samplingInterval, import_range::kInterval, "S",
            "Sampling interval, s (1e-6 to 1e6)")
        ->required();
    addTableOptions(*app, *options);
    app->add_option("--name", options->import.name,
                    "Name of the data file; the table's without folder and extension\nunless given")
        ->type_name("TEXT");
    addTriple(*app, "--position", options->import.settings.position, kPositions, "X,Y,Z",
              "Position of the sampling volume, m")
        ->default_str("0,0,0");
    app->add_flag("--as-probes", options->import.asProbes, "Make all tables probes 1, 2, ... of one data file");
    needsName(
        app->add_option(
            "TABLE", options->tables,
            "Text with one sample per line; comma, semicolon, tab or blanks\nbetween the values, # before a comment"))
        ->required()
        ->type_name("");
    return {app, [options](Console& console) {
                options->import.tables.assign(options->tables.begin(), options->tables.end());
                options->import.table.missing =
                    options->missing == 1 ? TableOptions::Missing::Mark : TableOptions::Missing::Error;
                for (const std::string& table : options->tables) {
                    requireOtherThanInput(options->out, table);
                }
                requireReplaceable(options->out);
                SilentPort port;
                CVorl_ADVDoc document(port);
                std::optional<WorkspaceUpdate> update;
                if (options->append) {
                    update.emplace(document, options->out, console);
                }
                document.AppendFiles(readFiles(*options, console));
                document.SelectProbe(0);
                update ? update->save() : saveDocument(document, options->out);
                return ExitStatus::Done;
            }};
}

}  // namespace vorlan
