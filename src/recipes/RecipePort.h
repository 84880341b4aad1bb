#pragma once

#include <optional>
#include <string>

#include "app/DocumentPort.h"

namespace vorlan {

/// The document's port while a recipe runs: questions are answered by the recipe and by what was chosen before the run,
/// and what is said names its place.
class RecipePort : public DocumentPort {
  public:
    /// repeatStages answers the question about repeating done stages where a step does not.
    explicit RecipePort(bool repeatStages) : repeatStages_(repeatStages) {}

    /// What the following calls are about: the input, then where in it ("in.avp: data file 1, probe 2").
    void setContext(std::string context) { context_ = std::move(context); }
    const std::string& context() const { return context_; }
    /// Whether values that the document works out are kept. The question is told with them in any case.
    void setAccepts(bool accepts) { accepts_ = accepts; }
    /// The step's own answer to the question about repeating done stages, if it has one.
    void setStepRepeats(std::optional<bool> repeats) { stepRepeats_ = repeats; }
    /// A line about what the calls are about.
    void tell(const std::string& text);
    /// Whether a refusal was said since the last call of this function.
    bool takeRefused();
    /// Whether the user wants the run to end.
    virtual bool stopped() const = 0;

    bool confirm(Question question) override;
    bool accept(const std::string& question) override;
    /// Nobody is there who could put things right.
    bool retry(const std::string& text) override;
    void refuse(const std::string& text) override;

  private:
    virtual void say(const std::string& line) = 0;

    bool repeatStages_;
    std::optional<bool> stepRepeats_;
    std::string context_;
    bool refused_ = false;
    bool accepts_ = true;
};

}  // namespace vorlan
