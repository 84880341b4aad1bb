#include "batch/BatchProgram.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "batch/Jobs.h"
#include "batch/Subcommands.h"
#include "model/Index.h"
#include "model/Workspace.h"

namespace vorlan {

namespace {

constexpr const char* kVersionHelp = "Print the version";
constexpr const char* kHelpHelp = "Print this help";
constexpr const char* kStatusHelp =
    "Exit status: 0 done, 1 refused, 2 wrong usage or recipe, 3 an input cannot be read,\n"
    "4 an output cannot be written. An output file is replaced only when it is complete.";

/// "vorlan-batch 1.59".
std::string versionLine() {
    const std::string_view text = kVersionText;
    return std::string(kBatchName) + std::string(text.substr(text.find(' ')));
}

std::vector<Subcommand> addSubcommands(CLI::App& program) {
    std::vector<Subcommand> commands;
    for (const auto add : {addNewCommand, addSimulateCommand, addImportCommand, addInfoCommand, addRunCommand,
                           addExportCommand, addRenderCommand, addReportCommand}) {
        commands.push_back(add(program));
        commands.back().options->set_version_flag("--version", versionLine(), kVersionHelp);
        commands.back().options->set_help_flag("-h,--help", kHelpHelp);
    }
    return commands;
}

/// The first word is the subcommand: an unknown one is worth its name.
std::string textOf(const CLI::ParseError& error, const CLI::App& program, const std::string& first) {
    const bool word = !first.empty() && first[0] != '-';
    return word && program.get_subcommands().empty() ? "\"" + first + "\" is not a subcommand" : error.what();
}

/// An option of the form "--name=" without a value; empty when there is none. The library would take the next word for
/// the value: with an empty variable behind "--out=" that is an input.
std::string emptyOption(const std::vector<std::string>& args) {
    for (const std::string& word : args) {
        if (word == "--") {
            break;
        }
        if (word.starts_with("--") && word.find('=') == word.size() - 1) {
            return word;
        }
    }
    return {};
}

int usageFault(Console& console, const CLI::App& program, const std::string& text) {
    console.complain(text);
    std::string command = kBatchName;
    for (const CLI::App* used : program.get_subcommands()) {
        command += " " + used->get_name();
    }
    console.err << "Try \"" << command << " --help\".\n" << std::flush;
    return asInt(ExitStatus::Usage);
}

/// What was asked for has to arrive: a full disk behind out is a failure.
int afterOutput(Console& console) {
    console.out.flush();
    if (console.out) {
        return asInt(ExitStatus::Done);
    }
    console.complain("Standard output cannot be written");
    return asInt(ExitStatus::Unwritable);
}

int answer(std::vector<std::string> args, Console& console) {
    CLI::App program(
        "Turbulence measurements without a window: runs the commands of Vorlan over any number of workspaces.",
        kBatchName);
    program.get_formatter()->column_width(36);
    program.set_version_flag("--version", versionLine(), kVersionHelp);
    program.set_help_flag("-h,--help", kHelpHelp);
    program.footer(kStatusHelp);
    program.require_subcommand(1);
    const std::vector<Subcommand> commands = addSubcommands(program);
    const std::string first = args.empty() ? "" : args.front();
    if (const std::string option = emptyOption(args); !option.empty()) {
        return usageFault(console, program, option + " has no value: write it behind the equals sign");
    }
    try {
        std::reverse(args.begin(), args.end());
        program.parse(std::move(args));
    } catch (const CLI::CallForHelp&) {
        console.out << program.help();
        return afterOutput(console);
    } catch (const CLI::CallForVersion& version) {
        console.out << version.what() << '\n';
        return afterOutput(console);
    } catch (const CLI::ParseError& error) {
        return usageFault(console, program, textOf(error, program, first));
    }
    ExitStatus status = ExitStatus::Usage;
    for (const Subcommand& command : commands) {
        if (command.options->parsed()) {
            status = command.run(console);
        }
    }
    return asInt(status);
}

}  // namespace

int runBatch(std::vector<std::string> args, std::ostream& out, std::ostream& err) {
    Console console{out, err, &err == &std::cerr && ::isatty(STDERR_FILENO) == 1};
    int status = 0;
    // Reading the command line takes memory, too.
    const ExitStatus thrown = guarded(console, [&](Console& own) { status = answer(std::move(args), own); });
    return thrown == ExitStatus::Done ? status : asInt(thrown);
}

}  // namespace vorlan
