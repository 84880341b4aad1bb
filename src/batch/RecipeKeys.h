#pragma once

#include <array>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "analysis/Simulation.h"

namespace vorlan {

/// What a key of a step may hold; a choice is held as its index.
using KeyValue = std::variant<bool, int, double, std::string, std::array<double, 3>>;

enum class KeyType { Boolean, Integer, Real, Choice, Text, Triple };

/// One key of a step: type, allowed values, and the value that stands for an absent key.
struct KeyRule {
    std::string name;
    KeyType type;
    std::optional<KeyValue> fallback = std::nullopt;
    bool required = false;  ///< without a fallback: must be there; else absence has a meaning of its own
    Range range{-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
    std::vector<std::string> choices = {};
    /// Why a text is not accepted; empty when it is.
    std::string (*faultOfText)(const std::string&) = nullptr;
};

/// The values of one step, fallbacks filled in.
class StepValues {
  public:
    void set(const std::string& name, KeyValue value) { values_[name] = std::move(value); }
    bool has(const std::string& name) const { return values_.count(name) != 0; }

    bool boolean(const std::string& name) const { return get<bool>(name); }
    int integer(const std::string& name) const { return get<int>(name); }
    double real(const std::string& name) const { return get<double>(name); }
    /// Index in the key's choices.
    int choice(const std::string& name) const { return get<int>(name); }
    const std::string& text(const std::string& name) const { return get<std::string>(name); }
    const std::array<double, 3>& triple(const std::string& name) const { return get<std::array<double, 3>>(name); }

  private:
    template <class T>
    const T& get(const std::string& name) const {
        return std::get<T>(values_.at(name));
    }

    std::map<std::string, KeyValue> values_;
};

// Rows of the step table.

KeyRule booleanKey(std::string name, bool fallback);
KeyRule integerKey(std::string name, std::optional<int> fallback);
KeyRule realKey(std::string name, std::optional<double> fallback);
/// fallback is one of the choices, or empty for none.
KeyRule choiceKey(std::string name, std::vector<std::string> choices, const std::string& fallback = {});
KeyRule textKey(std::string name, std::optional<std::string> fallback,
                std::string (*faultOfText)(const std::string&) = nullptr);
KeyRule tripleKey(std::string name);

KeyRule within(KeyRule key, double minimum, double maximum);
KeyRule above(KeyRule key, double limit);
KeyRule required(KeyRule key);

/// "a, b or c".
std::string listed(const std::vector<std::string>& choices);
/// "between 1 and 5", "at least 1", "above 0".
std::string describe(const Range& range);

}  // namespace vorlan
