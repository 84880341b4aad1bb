#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

namespace vorlan {

/// Allowed values of a number, both ends included.
struct Range {
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
    bool holds(double v) const { return v >= minimum && v <= maximum; }
};

/// A value of a coded field.
struct Choice {
    const char* name;
    std::int32_t code;
};

/// What is known of one field of a settings value beside its type and default.
struct SettingField {
    const char* name = "";             ///< its key in recipes; empty: it has none
    Range range = {};                  ///< of a number
    std::vector<Choice> choices = {};  ///< of a code, in the order in which they are listed
    const char* meaning = "";          ///< for whoever is to fill it in
    const char* unit = "";

    bool offers(std::int32_t code) const {
        return std::any_of(choices.begin(), choices.end(), [code](const Choice& c) { return c.code == code; });
    }
};

/// A yes or no of a file's 32 bits. Every word but 0 is a yes, and is stored again as it was read until somebody
/// decides anew.
class StoredFlag {
  public:
    StoredFlag(bool on = false) : word_(on ? 1 : 0) {}
    operator bool() const { return word_ != 0; }
    std::int32_t& word() { return word_; }
    std::int32_t word() const { return word_; }

    friend bool operator==(const StoredFlag& a, const StoredFlag& b) { return a.word_ == b.word_; }

  private:
    std::int32_t word_;
};

// A settings value lists its fields: Settings::Fields(settings, visit) calls visit(SettingField, member) for each.

/// The settings as they can be used: a code that a damaged file holds gives way to the default.
template <class Settings>
Settings usable(Settings settings) {
    Settings usual;
    std::vector<std::int32_t> defaults;
    Settings::Fields(usual, [&](const SettingField& field, const auto& value) {
        if (!field.choices.empty()) {
            defaults.push_back(static_cast<std::int32_t>(value));
        }
    });
    auto next = defaults.begin();
    Settings::Fields(settings, [&](const SettingField& field, auto& value) {
        if (field.choices.empty()) {
            return;
        }
        if (!field.offers(static_cast<std::int32_t>(value))) {
            value = static_cast<std::remove_cvref_t<decltype(value)>>(*next);
        }
        ++next;
    });
    return settings;
}

/// What is known of a member of settings.
template <class Settings, class Member>
SettingField fieldOf(const Settings& settings, const Member& member) {
    SettingField found;
    Settings::Fields(settings, [&](const SettingField& field, const auto& value) {
        if (static_cast<const void*>(&value) == &member) {
            found = field;
        }
    });
    return found;
}

}  // namespace vorlan
