#pragma once

#include <functional>

#include "batch/Console.h"
#include "recipes/RunError.h"

namespace CLI {
class App;
}

namespace vorlan {

/// One subcommand: its options, and what it does once they were parsed. run throws RunError, or returns how the
/// worst of several inputs ended.
struct Subcommand {
    CLI::App* options = nullptr;
    std::function<ExitStatus(Console&)> run;
};

Subcommand addNewCommand(CLI::App& program);
Subcommand addSimulateCommand(CLI::App& program);
Subcommand addImportCommand(CLI::App& program);
Subcommand addInfoCommand(CLI::App& program);
Subcommand addRunCommand(CLI::App& program);
Subcommand addExportCommand(CLI::App& program);
Subcommand addRenderCommand(CLI::App& program);
Subcommand addReportCommand(CLI::App& program);

}  // namespace vorlan
