#include "analysis/ImportedProbe.h"
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
    bool asProbes = false;
    std::optional<std::string> name;
    TableOptions table;
    ImportSettings settings;
    int missing = 0;  ///< 0 error, 1 mark
    std::vector<std::string> tables;
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

SAdvProbe readProbe(const std::string& path, const ImportOptions& options, std::uint32_t number, Console& console) {
    try {
        const DelimitedTable table = readDelimitedTable(path, options.table);
        tellUnused(path, table.unused, console);
        ImportSettings settings = options.settings;
        settings.probeNumber = number;
        return importedProbe(table.record, settings);
    } catch (const FileError& error) {
        throw unreadable(textOf(error));
    } catch (const InvalidArgument&) {
        throw unreadable(path + ": a column holds no value");
    }
}

SAdvFile newFile(const ImportOptions& options, const std::string& table) {
    SAdvFile file;
    file.fileName = options.name ? *options.name : std::filesystem::path(table).stem().string();
    file.headerDoubleA = options.settings.samplingInterval;
    return file;
}

void setLength(SAdvFile& file) {
    const SAdvProbe& first = file.probes.GetAt(0);
    file.headerDoubleB = first.WorkingSamples() * first.samplingInterval;
}

std::vector<SAdvFile> readFiles(const ImportOptions& options, Console& console) {
    std::vector<SAdvFile> files;
    for (const std::string& table : options.tables) {
        if (files.empty() || !options.asProbes) {
            files.push_back(newFile(options, table));
        }
        SAdvProbesArray& probes = files.back().probes;
        probes.Add(readProbe(table, options, static_cast<std::uint32_t>(probes.GetSize()) + 1, console));
        setLength(files.back());
    }
    return files;
}

void addTableOptions(CLI::App& app, ImportOptions& options) {
    app.add_option_function<std::string>(
           "--columns",
           [&options](const std::string& text) {
               const std::string fault = refusalOfColumnList(text);
               if (!fault.empty()) {
                   throw CLI::ValidationError("--columns", fault);
               }
               options.table.columns = text;
           },
           "Names of the columns with commas between them, - for one to skip:\nu,v,w (required), cor1,cor2,cor3, "
           "snr1,snr2,snr3,\nheading,pitch,roll, pressure; without it the first line names them")
        ->type_name("LIST");
    addReal(app, "--resolution", options.settings.resolution, import_range::kResolution, "R",
            "Step in which velocities are stored, cm/s (1e-9 to 1000); everything\nelse takes 0.001")
        ->default_str(shown(options.settings.resolution));
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
    addReal(*app, "--interval", options->settings.samplingInterval, import_range::kInterval, "S",
            "Sampling interval, s (1e-6 to 1e6)")
        ->required();
    addTableOptions(*app, *options);
    app->add_option("--name", options->name,
                    "Name of the data file; the table's without folder and extension\nunless given")
        ->type_name("TEXT");
    addTriple(*app, "--position", options->settings.position, kPositions, "X,Y,Z", "Position of the sampling volume, m")
        ->default_str("0,0,0");
    app->add_flag("--as-probes", options->asProbes, "Make all tables probes 1, 2, ... of one data file");
    needsName(
        app->add_option(
            "TABLE", options->tables,
            "Text with one sample per line; comma, semicolon, tab or blanks\nbetween the values, # before a comment"))
        ->required()
        ->type_name("");
    return {app, [options](Console& console) {
                options->table.velocityResolution = options->settings.resolution;
                options->table.missing =
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
                for (SAdvFile& file : readFiles(*options, console)) {
                    document.AppendFile(std::move(file));
                }
                document.SelectProbe(0);
                update ? update->save() : saveDocument(document, options->out);
                return ExitStatus::Done;
            }};
}

}  // namespace vorlan
