#include "recipes/RecipePort.h"

namespace vorlan {

bool RecipePort::takeRefused() {
    const bool said = refused_;
    refused_ = false;
    return said;
}

void RecipePort::tell(const std::string& text) {
    say(context_ + ": " + text);
}

bool RecipePort::accept(const std::string& question) {
    tell(question + (accepts_ ? " OK" : " Cancel"));
    return accepts_;
}

bool RecipePort::confirm(Question question) {
    // The one question that has two sensible answers; all others ask whether the user means what the recipe says.
    return question == Question::RepeatStages ? stepRepeats_.value_or(repeatStages_) : true;
}

bool RecipePort::retry(const std::string& text) {
    refuse(text);
    return false;
}

void RecipePort::refuse(const std::string& text) {
    refused_ = true;
    tell(text);
}

}  // namespace vorlan
