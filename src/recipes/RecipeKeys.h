#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/SettingField.h"

#include "model/Index.h"

namespace vorlan {

/// What a key of a step may hold; a choice is held as its index.
using KeyValue =
    std::variant<bool, int, double, std::string, std::array<double, 3>, std::array<double, 2>, std::vector<int>>;

enum class KeyType { Boolean, Integer, Real, Choice, Text, Triple, Pair, Choices, RealOrAuto };

/// One key of a step: type, allowed values, and the value that stands for an absent key.
struct KeyRule {
    std::string name;
    KeyType type;
    std::optional<KeyValue> fallback = std::nullopt;
    bool required = false;  ///< without a fallback: must be there; else absence has a meaning of its own
    Range range = {};
    std::vector<std::string> choices = {};
    /// Why a text is not accepted; empty when it is.
    std::string (*faultOfText)(const std::string&) = nullptr;
};

/// The values of one step, fallbacks filled in.
class StepValues {
  public:
    void set(const std::string& name, KeyValue value) { values_[name] = std::move(value); }
    void remove(const std::string& name) { values_.erase(name); }
    bool has(const std::string& name) const { return values_.count(name) != 0; }

    bool boolean(const std::string& name) const { return get<bool>(name); }
    int integer(const std::string& name) const { return get<int>(name); }
    double real(const std::string& name) const { return get<double>(name); }
    /// Index in the key's choices.
    int choice(const std::string& name) const { return get<int>(name); }
    const std::string& text(const std::string& name) const { return get<std::string>(name); }
    /// Empty for "auto".
    std::optional<double> realOrAuto(const std::string& name) const;
    const std::array<double, 3>& triple(const std::string& name) const { return get<std::array<double, 3>>(name); }
    const std::array<double, 2>& pair(const std::string& name) const { return get<std::array<double, 2>>(name); }
    /// Indexes in the key's choices.
    const std::vector<int>& choices(const std::string& name) const { return get<std::vector<int>>(name); }

  private:
    template <class T>
    const T& get(const std::string& name) const {
        return std::get<T>(values_.at(name));
    }

    std::map<std::string, KeyValue> values_;
};

// Rows of the step table.

KeyRule booleanKey(std::string name, std::optional<bool> fallback);
KeyRule integerKey(std::string name, std::optional<int> fallback);
KeyRule realKey(std::string name, std::optional<double> fallback);
/// fallback is one of the choices, or empty for none.
KeyRule choiceKey(std::string name, std::vector<std::string> choices, const std::string& fallback = {});
KeyRule textKey(std::string name, std::optional<std::string> fallback,
                std::string (*faultOfText)(const std::string&) = nullptr);
KeyRule tripleKey(std::string name);
KeyRule pairKey(std::string name);
/// A list of the choices, in any order.
KeyRule choicesKey(std::string name, std::vector<std::string> choices);
/// A number, or "auto".
KeyRule realOrAutoKey(std::string name);

// Keys that hold a field of a settings value; the field's value is what an absent key stands for.

KeyRule keyOf(const SettingField& field, const StoredFlag& fallback);
KeyRule keyOf(const SettingField& field, std::int32_t fallback);
KeyRule keyOf(const SettingField& field, double fallback);

/// The keys of a settings value, with its defaults.
template <class Settings>
std::vector<KeyRule> keysOf() {
    std::vector<KeyRule> keys;
    const Settings usual;
    Settings::Fields(usual, [&](const SettingField& field, const auto& value) {
        if (*field.name == '\0') {
            return;
        }
        if constexpr (std::is_enum_v<std::remove_cvref_t<decltype(value)>>) {
            keys.push_back(keyOf(field, static_cast<std::int32_t>(value)));
        } else {
            keys.push_back(keyOf(field, value));
        }
    });
    return keys;
}

/// Keys of these names whose absence has a meaning of its own.
std::vector<KeyRule> withoutFallback(std::vector<KeyRule> keys, const std::vector<std::string>& names);

/// A key of this name whose range is checked elsewhere.
std::vector<KeyRule> withoutRange(std::vector<KeyRule> keys, const std::string& name);

/// The settings with the values of a step in the place of what they held.
template <class Settings>
Settings settingsOf(const StepValues& values, Settings settings = {}) {
    Settings::Fields(settings, [&](const SettingField& field, auto& value) {
        using Value = std::remove_cvref_t<decltype(value)>;
        if (!values.has(field.name)) {
            return;
        }
        if constexpr (std::is_same_v<Value, StoredFlag>) {
            value = values.boolean(field.name);
        } else if constexpr (std::is_same_v<Value, double>) {
            value = values.real(field.name);
        } else if (field.choices.empty()) {
            value = static_cast<Value>(values.integer(field.name));
        } else {
            value = static_cast<Value>(field.choices[asSize(values.choice(field.name))].code);
        }
    });
    return settings;
}

/// The values with which a step takes the settings.
template <class Settings>
StepValues valuesOf(const Settings& settings) {
    StepValues values;
    Settings::Fields(settings, [&](const SettingField& field, const auto& value) {
        using Value = std::remove_cvref_t<decltype(value)>;
        if (*field.name == '\0') {
            return;
        }
        if constexpr (std::is_same_v<Value, StoredFlag>) {
            values.set(field.name, static_cast<bool>(value));
        } else if constexpr (std::is_same_v<Value, double>) {
            values.set(field.name, value);
        } else if (field.choices.empty()) {
            values.set(field.name, asInt(value));
        } else {
            for (std::size_t i = 0; i < field.choices.size(); ++i) {
                if (field.choices[i].code == static_cast<std::int32_t>(value)) {
                    values.set(field.name, asInt(i));
                }
            }
        }
    });
    return values;
}

KeyRule within(KeyRule key, double minimum, double maximum);
KeyRule above(KeyRule key, double limit);
KeyRule required(KeyRule key);

/// "a, b or c".
std::string listed(const std::vector<std::string>& choices, const std::string& last = "or");

}  // namespace vorlan
