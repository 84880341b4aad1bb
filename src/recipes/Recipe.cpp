#include "recipes/Recipe.h"

// What the library asserts it also answers with an error; without an assertion it does so in every build.
#pragma push_macro("NDEBUG")
#undef NDEBUG
#define TOML_ASSERT(condition) static_cast<void>(0)
#include <toml++/toml.h>
#pragma pop_macro("NDEBUG")

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "io/ReadFile.h"
#include "model/Index.h"
#include "model/RangeText.h"
#include "model/Text.h"
#include "recipes/RecipeText.h"
#include "recipes/RunError.h"

namespace vorlan {

namespace {

std::string inQuotes(std::string_view text) {
    return std::string("\"").append(text).append("\"");
}

int lineOf(const toml::source_region& source) {
    return asInt(source.begin.line);
}

/// What is wrong with a recipe, by line.
class Faults {
  public:
    void add(int line, const std::string& text) { list_.push_back({line, text}); }

    void throwIfAny(const std::filesystem::path& path) {
        if (list_.empty()) {
            return;
        }
        std::stable_sort(list_.begin(), list_.end(), [](const Fault& a, const Fault& b) { return a.line < b.line; });
        std::string text;
        for (const Fault& fault : list_) {
            text += path.string() + ":" + std::to_string(fault.line) + ": " + fault.text + "\n";
        }
        throw usageError(text);
    }

  private:
    struct Fault {
        int line;
        std::string text;
    };
    std::vector<Fault> list_;
};

/// The value of one key, or why it cannot be taken.
struct TakenValue {
    std::optional<KeyValue> value;
    std::string fault;
};

TakenValue wrong(std::string fault) {
    return {std::nullopt, std::move(fault)};
}

std::optional<double> realOf(const toml::node& node) {
    if (const auto* integer = node.as_integer()) {
        return static_cast<double>(integer->get());
    }
    if (const auto* real = node.as_floating_point(); real != nullptr && std::isfinite(real->get())) {
        return real->get();
    }
    return std::nullopt;
}

TakenValue takeInteger(const KeyRule& key, const toml::node& node) {
    const auto* integer = node.as_integer();
    if (integer == nullptr) {
        return wrong("must be an integer");
    }
    const bool fits =
        integer->get() >= std::numeric_limits<int>::min() && integer->get() <= std::numeric_limits<int>::max();
    if (!fits || !key.range.holds(static_cast<double>(integer->get()))) {
        return wrong(std::isfinite(key.range.minimum) ? "must be " + rangeText(key.range) : "is too large");
    }
    return {asInt(integer->get()), {}};
}

TakenValue takeReal(const KeyRule& key, const toml::node& node) {
    const std::optional<double> real = realOf(node);
    if (!real) {
        return wrong("must be a finite number");
    }
    return key.range.holds(*real) ? TakenValue{*real, {}} : wrong("must be " + rangeText(key.range));
}

TakenValue takeChoice(const KeyRule& key, const toml::node& node) {
    std::vector<std::string> names;
    std::transform(key.choices.begin(), key.choices.end(), std::back_inserter(names), inQuotes);
    if (const auto* text = node.as_string()) {
        const auto at = std::find(key.choices.begin(), key.choices.end(), text->get());
        if (at != key.choices.end()) {
            return {asInt(at - key.choices.begin()), {}};
        }
    }
    return wrong("must be " + listed(names));
}

TakenValue takeText(const KeyRule& key, const toml::node& node) {
    const auto* text = node.as_string();
    if (text == nullptr) {
        return wrong("must be a text");
    }
    const std::string fault = key.faultOfText != nullptr ? key.faultOfText(text->get()) : "";
    return fault.empty() ? TakenValue{text->get(), {}} : wrong(fault);
}

template <std::size_t count>
TakenValue takeNumbers(const toml::node& node, const std::string& words) {
    std::array<double, count> numbers{};
    const auto* array = node.as_array();
    if (array == nullptr || array->size() != count) {
        return wrong("must be " + words + " numbers in brackets");
    }
    for (std::size_t i = 0; i < count; ++i) {
        const std::optional<double> real = realOf((*array)[i]);
        if (!real) {
            return wrong("must be " + words + " finite numbers in brackets");
        }
        numbers[i] = *real;
    }
    return {numbers, {}};
}

TakenValue takeChoices(const KeyRule& key, const toml::node& node) {
    const auto* array = node.as_array();
    if (array == nullptr) {
        return wrong("must be a list in brackets");
    }
    std::vector<int> indexes;
    for (const toml::node& item : *array) {
        const TakenValue one = takeChoice(key, item);
        if (!one.value) {
            return wrong("has an unknown item: each " + one.fault);
        }
        indexes.push_back(std::get<int>(*one.value));
    }
    return {indexes, {}};
}

TakenValue takeRealOrAuto(const toml::node& node) {
    const auto* text = node.as_string();
    if (text != nullptr && text->get() == "auto") {
        return {text->get(), {}};
    }
    const std::optional<double> real = realOf(node);
    return real ? TakenValue{*real, {}} : wrong("must be a finite number or \"auto\"");
}

TakenValue takeValue(const KeyRule& key, const toml::node& node) {
    switch (key.type) {
        case KeyType::Boolean:
            return node.is_boolean() ? TakenValue{node.as_boolean()->get(), {}} : wrong("must be true or false");
        case KeyType::Integer:
            return takeInteger(key, node);
        case KeyType::Real:
            return takeReal(key, node);
        case KeyType::Choice:
            return takeChoice(key, node);
        case KeyType::Text:
            return takeText(key, node);
        case KeyType::Triple:
            return takeNumbers<3>(node, "three");
        case KeyType::Pair:
            return takeNumbers<2>(node, "two");
        case KeyType::Choices:
            return takeChoices(key, node);
        case KeyType::RealOrAuto:
            return takeRealOrAuto(node);
    }
    return wrong("is not known");
}

void takeKeys(RecipeStep& step, const toml::table& table, const std::string& where, Faults& faults) {
    bool complete = true;
    for (const auto& [name, node] : table) {
        const std::string text(name.str());
        const auto key = std::find_if(step.kind->keys.begin(), step.kind->keys.end(),
                                      [&](const KeyRule& rule) { return rule.name == text; });
        if (text == "do") {
            continue;
        }
        if (key == step.kind->keys.end()) {
            faults.add(lineOf(name.source()), where + ": unknown key " + inQuotes(text));
            continue;
        }
        TakenValue taken = takeValue(*key, node);
        if (taken.value) {
            step.values.set(text, *std::move(taken.value));
        } else {
            faults.add(lineOf(node.source()), where + ": " + inQuotes(text) + " " + taken.fault);
            complete = false;
        }
    }
    for (const KeyRule& key : step.kind->keys) {
        if (key.required && !table.contains(key.name)) {
            faults.add(step.line, where + ": key " + inQuotes(key.name) + " is missing");
            complete = false;
        }
        if (key.fallback && !step.values.has(key.name)) {
            step.values.set(key.name, *key.fallback);
        }
    }
    if (complete && step.kind->faultOfValues != nullptr) {
        const std::string fault = step.kind->faultOfValues(step.values);
        if (!fault.empty()) {
            faults.add(step.line, where + ": " + fault);
        }
    }
}

std::string stepNames() {
    std::vector<std::string> names;
    for (const StepKind& kind : stepTable()) {
        names.push_back(inQuotes(kind.name));
    }
    return listed(names);
}

void takeStep(Recipe& recipe, const toml::table& table, std::size_t number, Faults& faults) {
    RecipeStep step;
    step.line = lineOf(table.source());
    std::string where = "step " + std::to_string(number);
    const toml::node* name = table.get("do");
    if (name == nullptr) {
        faults.add(step.line, where + ": key \"do\" is missing");
        return;
    }
    if (!name->is_string()) {
        faults.add(lineOf(name->source()), where + ": \"do\" must be a text");
        return;
    }
    step.kind = stepNamed(name->as_string()->get());
    if (step.kind == nullptr) {
        faults.add(lineOf(name->source()),
                   where + ": unknown step " + inQuotes(name->as_string()->get()) + "; it can be " + stepNames());
        return;
    }
    where += " (" + step.kind->name + ")";
    takeKeys(step, table, where, faults);
    recipe.steps.push_back(std::move(step));
}

void takeSteps(Recipe& recipe, const toml::node& node, Faults& faults) {
    const auto* array = node.as_array();
    const bool tables = array != nullptr && std::all_of(array->begin(), array->end(),
                                                        [](const toml::node& step) { return step.is_table(); });
    if (!tables) {
        faults.add(lineOf(node.source()), "\"step\" must be a list of tables: write [[step]]");
        return;
    }
    for (std::size_t i = 0; i < array->size(); ++i) {
        takeStep(recipe, *array->get(i)->as_table(), i + 1, faults);
    }
}

std::optional<std::vector<int>> takeNumbers(std::string_view key, const toml::node& node, Faults& faults) {
    std::set<int> numbers;
    std::vector<int> list;
    const auto* array = node.as_array();
    bool right = array != nullptr && !array->empty();
    for (std::size_t i = 0; right && i < array->size(); ++i) {
        const auto* number = array->get(i)->as_integer();
        right = number != nullptr && number->get() >= 1 && number->get() <= std::numeric_limits<int>::max() &&
                numbers.insert(asInt(number->get())).second;
        if (right) {
            list.push_back(asInt(number->get()));
        }
    }
    if (!right) {
        faults.add(lineOf(node.source()), inQuotes(key) + " must be a list of different numbers from 1, as in [1, 2]");
    }
    return list;
}

}  // namespace

bool Recipe::writesFiles() const {
    return std::any_of(steps.begin(), steps.end(),
                       [](const RecipeStep& step) { return outputOf(step.values).has_value(); });
}

void placeFiles(Recipe& recipe, const std::filesystem::path& folder) {
    for (RecipeStep& step : recipe.steps) {
        for (const char* key : {"out", "path"}) {
            if (step.values.has(key) && step.values.text(key) != kStandardOutput) {
                step.values.set(key, (folder / step.values.text(key)).string());
            }
        }
    }
}

Recipe parseRecipe(std::string_view text, const std::filesystem::path& path) {
    Faults faults;
    Recipe recipe;
    if (const std::optional<RecipeTextFault> fault = faultOfRecipeText(text)) {
        faults.add(fault->line, fault->text);
        faults.throwIfAny(path);
    }
    try {
        const toml::table table = toml::parse(text);
        for (const auto& [key, node] : table) {
            if (key == "files") {
                recipe.files = takeNumbers(key.str(), node, faults);
            } else if (key == "probes") {
                recipe.probes = takeNumbers(key.str(), node, faults);
            } else if (key == "step") {
                takeSteps(recipe, node, faults);
            } else {
                faults.add(lineOf(key.source()), "unknown key " + inQuotes(key.str()) +
                                                     "; a recipe holds \"files\", \"probes\" and [[step]] tables");
            }
        }
    } catch (const toml::parse_error& error) {
        faults.add(lineOf(error.source()), std::string(error.description()));
    }
    faults.throwIfAny(path);
    return recipe;
}

Recipe loadRecipe(const std::filesystem::path& path) {
    try {
        const FileContent content = readFile(path);
        return parseRecipe(content.text(), path);
    } catch (const FileError& error) {
        throw unreadable(textOf(error));
    }
}

}  // namespace vorlan
