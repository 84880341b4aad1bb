#pragma once

#include <filesystem>
#include <optional>

#include "recipes/PendingBoundaries.h"
#include "recipes/Recipe.h"
#include "recipes/RecipePort.h"

namespace vorlan {

/// Applies a recipe to a document: all steps to the first selected probe, then to the next. What the steps write is
/// held back until somebody commits it. At the end the selection is what it was.
class RecipeRun {
  public:
    /// input names the workspace in messages and in the outputs of steps. The document keeps reading and writing its
    /// boundary files through this run. pictures is asked when a step draws. Steps write below folders, the working
    /// folder and that of the input.
    RecipeRun(CVorl_ADVDoc& document, RecipePort& port, std::filesystem::path input, PicturesSource pictures,
              OutputFolders folders = {});

    /// RunError for everything that ends the run; refusals have gone to the port then. target is the workspace that is
    /// written afterwards, if there is one: no step may write it, too.
    void apply(const Recipe& recipe, const std::filesystem::path& target);
    PendingOutputs& outputs() { return outputs_; }

  private:
    std::vector<ProbePlace> placesOf(const Recipe& recipe, const std::filesystem::path& target);
    void applyStep(const RecipeStep& step, std::size_t number, const std::optional<ProbePlace>& place);

    CVorl_ADVDoc& document_;
    RecipePort& port_;
    std::filesystem::path input_;
    OutputFolders folders_;
    PendingOutputs outputs_;
    PendingBoundaries boundaries_{outputs_, folders_};
    std::optional<GridEditor> grid_;
    Renderer renderer_;
};

}  // namespace vorlan
