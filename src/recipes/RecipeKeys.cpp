#include "recipes/RecipeKeys.h"

#include <algorithm>
#include <cmath>

#include "model/Index.h"
#include "model/Text.h"

namespace vorlan {

namespace {
// Ends that only keep numbers finite are not worth telling.
constexpr double kUnbounded = 1e300;
}  // namespace

KeyRule booleanKey(std::string name, std::optional<bool> fallback) {
    KeyRule key{.name = std::move(name), .type = KeyType::Boolean};
    if (fallback) {
        key.fallback = *fallback;
    }
    return key;
}

KeyRule integerKey(std::string name, std::optional<int> fallback) {
    KeyRule key{.name = std::move(name), .type = KeyType::Integer};
    if (fallback) {
        key.fallback = *fallback;
    }
    return key;
}

KeyRule realKey(std::string name, std::optional<double> fallback) {
    KeyRule key{.name = std::move(name), .type = KeyType::Real};
    if (fallback) {
        key.fallback = *fallback;
    }
    return key;
}

KeyRule choiceKey(std::string name, std::vector<std::string> choices, const std::string& fallback) {
    KeyRule key{.name = std::move(name), .type = KeyType::Choice};
    const auto at = std::find(choices.begin(), choices.end(), fallback);
    if (at != choices.end()) {
        key.fallback = asInt(at - choices.begin());
    }
    key.choices = std::move(choices);
    return key;
}

KeyRule textKey(std::string name, std::optional<std::string> fallback, std::string (*faultOfText)(const std::string&)) {
    KeyRule key{.name = std::move(name), .type = KeyType::Text};
    if (fallback) {
        key.fallback = *std::move(fallback);
    }
    key.faultOfText = faultOfText;
    return key;
}

KeyRule tripleKey(std::string name) {
    return {.name = std::move(name), .type = KeyType::Triple};
}

KeyRule pairKey(std::string name) {
    return {.name = std::move(name), .type = KeyType::Pair};
}

KeyRule choicesKey(std::string name, std::vector<std::string> choices) {
    return {.name = std::move(name), .type = KeyType::Choices, .choices = std::move(choices)};
}

KeyRule realOrAutoKey(std::string name) {
    return {.name = std::move(name), .type = KeyType::RealOrAuto};
}

std::optional<double> StepValues::realOrAuto(const std::string& name) const {
    const auto* number = std::get_if<double>(&values_.at(name));
    return number != nullptr ? std::optional(*number) : std::nullopt;
}

KeyRule keyOf(const SettingField& field, const StoredFlag& fallback) {
    return booleanKey(field.name, fallback);
}

KeyRule keyOf(const SettingField& field, std::int32_t fallback) {
    if (field.choices.empty()) {
        KeyRule key = integerKey(field.name, fallback);
        key.range = field.range;
        return key;
    }
    std::vector<std::string> names;
    std::string usual;
    for (const Choice& choice : field.choices) {
        names.emplace_back(choice.name);
        if (choice.code == fallback) {
            usual = choice.name;
        }
    }
    return choiceKey(field.name, std::move(names), usual);
}

KeyRule keyOf(const SettingField& field, double fallback) {
    KeyRule key = realKey(field.name, fallback);
    key.range = field.range;
    return key;
}

std::vector<KeyRule> withoutRange(std::vector<KeyRule> keys, const std::string& name) {
    for (KeyRule& key : keys) {
        if (key.name == name) {
            key.range = Range{};
        }
    }
    return keys;
}

std::vector<KeyRule> withoutFallback(std::vector<KeyRule> keys, const std::vector<std::string>& names) {
    for (KeyRule& key : keys) {
        if (std::find(names.begin(), names.end(), key.name) != names.end()) {
            key.fallback.reset();
        }
    }
    return keys;
}

KeyRule within(KeyRule key, double minimum, double maximum) {
    key.range = {minimum, maximum};
    return key;
}

KeyRule above(KeyRule key, double limit) {
    // An integer key steps to the next integer; a real one excludes the limit alone.
    const double next = key.type == KeyType::Integer ? limit + 1.0 : std::nextafter(limit, limit + 1.0);
    key.range = {next, std::numeric_limits<double>::infinity()};
    return key;
}

KeyRule required(KeyRule key) {
    key.required = true;
    return key;
}

std::string listed(const std::vector<std::string>& choices, const std::string& last) {
    std::string text;
    for (std::size_t i = 0; i < choices.size(); ++i) {
        text += i == 0 ? std::string() : i + 1 == choices.size() ? " " + last + " " : ", ";
        text += choices[i];
    }
    return text;
}

}  // namespace vorlan
