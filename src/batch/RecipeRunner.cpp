#include "batch/RecipeRunner.h"

#include <optional>

#include "batch/Interrupt.h"
#include "batch/LoadPictures.h"
#include "batch/WorkspaceAccess.h"
#include "recipes/RecipeRun.h"
#include "recipes/RunError.h"

namespace vorlan {

namespace {

class Runner {
  public:
    Runner(const Recipe& recipe, const std::filesystem::path& input, const OutputFolders& folders,
           const ConsolePort::Options& options, Console& console)
        : recipe_(recipe),
          input_(input),
          console_(console),
          port_(console, options),
          document_(port_),
          run_(document_, port_, input, loadPictures, folders) {}

    void run(const std::filesystem::path& target) {
        if (!target.empty() && identityOf(target) == identityOf(input_)) {
            update_.emplace(document_, input_, console_);
        } else {
            openDocument(document_, input_);
        }
        // Every other subcommand simply dies of the signal, and this one while it opens: nothing is written before it
        // is complete.
        const InterruptWatch watch;
        run_.apply(recipe_, target);
        if (interrupted()) {
            throw RunError(ExitStatus::Interrupted, input_.string() + ": interrupted");
        }
        if (update_) {
            update_->requireUnchanged();
        }
        run_.outputs().commit(console_.out);
        if (!target.empty()) {
            writeWorkspace(target);
        }
    }

  private:
    void writeWorkspace(const std::filesystem::path& target) {
        if (!recipe_.steps.empty()) {
            update_ ? update_->save() : saveDocument(document_, target);
            return;
        }
        copyWorkspace(input_, target);
    }

    const Recipe& recipe_;
    const std::filesystem::path& input_;
    Console& console_;
    ConsolePort port_;
    CVorl_ADVDoc document_;
    std::optional<WorkspaceUpdate> update_;
    RecipeRun run_;
};

}  // namespace

void runRecipe(const Recipe& recipe, const std::filesystem::path& input, const std::filesystem::path& target,
               const OutputFolders& folders, const ConsolePort::Options& options, Console& console) {
    Runner(recipe, input, folders, options, console).run(target);
}

}  // namespace vorlan
