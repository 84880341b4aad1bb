// Any bytes as a recipe: faults with their lines, or steps, which are done to a small record. Nothing is written.
#include <cstdlib>

#include "DocumentUse.h"
#include "plot/ToolkitPictures.h"
#include "recipes/Recipe.h"
#include "recipes/RecipePort.h"
#include "recipes/RunError.h"

namespace {

constexpr std::size_t kMostSteps = 6;
constexpr double kMostResults = 1e4;

/// Many bands, grades or hole sizes are allowed and take their time; so do pictures.
bool isQuick(const vorlan::RecipeStep& step) {
    double largest = 0.0;
    for (const char* key : {"grades", "bands", "lags", "maximum", "pixels"}) {
        if (step.values.has(key)) {
            largest = std::max(largest, key[0] == 'm' ? step.values.real(key) / step.values.real("increment")
                                                      : step.values.integer(key));
        }
    }
    return step.kind->name != "render" && step.kind->name != "boundary-open" && largest < kMostResults;
}

class QuietPort : public vorlan::RecipePort {
  public:
    QuietPort() : RecipePort(true) {}
    bool stopped() const override { return false; }
    void beginRun(vorlan::Calculation) override {}
    void endRun() override {}
    void status(const std::string&) override {}
    void position(int) override {}
    void pump() override {}

  private:
    void say(const std::string&) override {}
};

void run(const vorlan::Recipe& recipe) {
    using namespace vorlan;
    static const SAdvFile record = simulate({.length = 1.2, .whiteNoise = true}, 1);
    QuietPort port;
    CVorl_ADVDoc document(port);
    MemoryBoundaries boundaries;
    document.SetBoundaryStorage(boundaries);
    document.AppendFiles({record});
    document.SelectProbe(0);
    PendingOutputs outputs;
    Renderer renderer(toolkitPictures);
    GridEditor grid(document);
    StepContext context{document, port, outputs, renderer, "in.avp", {}, grid};
    for (const RecipeStep& step : recipe.steps) {
        if (isQuick(step)) {
            try {
                runStep(*step.kind, step.values, context);
            } catch (const RunError&) {
            }
        }
    }
    requireSameAfterReading(storedBytes(document.GetWorkspace()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    try {
        const vorlan::Recipe recipe = vorlan::parseRecipe({reinterpret_cast<const char*>(bytes), size}, "r.toml");
        for (const vorlan::RecipeStep& step : recipe.steps) {
            if (const auto output = vorlan::outputOf(step.values)) {
                output->expand("in.avp", {0, 1});
            }
        }
        if (recipe.steps.size() <= kMostSteps) {
            run(recipe);
        }
    } catch (const vorlan::RunError& error) {
        if (error.status() != vorlan::ExitStatus::Usage || std::string(error.what()).find("r.toml:") != 0) {
            std::abort();
        }
    }
    return 0;
}
