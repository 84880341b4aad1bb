#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "recipes/RecipeSteps.h"

namespace vorlan {

/// A step as a recipe asks for it.
struct RecipeStep {
    const StepKind* kind = nullptr;
    StepValues values;
    int line = 0;  ///< where it begins, from 1
};

/// What is done to every selected probe of a workspace.
struct Recipe {
    std::optional<std::vector<int>> files;   ///< numbers from 1; all without
    std::optional<std::vector<int>> probes;  ///< the same, in every selected data file
    std::vector<RecipeStep> steps;

    /// True when a step writes a file of its own.
    bool writesFiles() const;
};

/// Gives the files that steps read or write a folder where their names have none.
void placeFiles(Recipe& recipe, const std::filesystem::path& folder);

/// Reads a recipe. RunError Unreadable when there is no file, Usage for its faults: one line "path:line: what" for
/// each, in the order of the lines.
Recipe loadRecipe(const std::filesystem::path& path);
Recipe parseRecipe(std::string_view text, const std::filesystem::path& path);

}  // namespace vorlan
