#pragma once

#include <filesystem>
#include <string>

#include "batch/Console.h"
#include "batch/ConsolePort.h"
#include "recipes/Outputs.h"
#include "recipes/Recipe.h"

namespace vorlan {

/// Applies the recipe to every selected probe of one workspace, all steps to the first, then to the next, and writes
/// what it makes: the files of its steps, then the workspace to target, if there is one. Nothing is written unless
/// every step was done; steps write below the folders only. A recipe without steps writes the input's bytes.
///
/// RunError for everything that ends the run; refusals have gone to the console then.
void runRecipe(const Recipe& recipe, const std::filesystem::path& input, const std::filesystem::path& target,
               const OutputFolders& folders, const ConsolePort::Options& options, Console& console);

}  // namespace vorlan
