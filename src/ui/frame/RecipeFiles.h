#pragma once

#include <functional>

#include "app/CVorl_ADVDoc.h"
#include "recipes/Recipe.h"
#include "ui/frame/UserBoxes.h"
#include "ui/frame/WorkspaceFiles.h"

namespace vorlan {

/// Recipes in the window: what was done to the active probe becomes one, and one is run as a single command.
class RecipeFiles {
  public:
    RecipeFiles(CVorl_ADVDoc& document, WorkspaceFiles& files, QWidget& window)
        : document_(document), files_(files), window_(window) {}

    void setBoxes(UserBoxes& boxes) { boxes_ = &boxes; }
    /// What shows the progress of a run and lets the user cancel it.
    void setPort(DocumentPort& port) { port_ = &port; }
    /// Tells how a command ended.
    void setReportFunction(std::function<void(const QString&)> report) { report_ = std::move(report); }

    void save();
    void choose();

  private:
    void run(const QString& path);
    /// Its steps write below the folder, too.
    void apply(Recipe recipe, const QString& name, const std::string& folder);

    CVorl_ADVDoc& document_;
    WorkspaceFiles& files_;
    QWidget& window_;
    UserBoxes* boxes_ = nullptr;
    DocumentPort* port_ = nullptr;
    std::function<void(const QString&)> report_;
};

}  // namespace vorlan
