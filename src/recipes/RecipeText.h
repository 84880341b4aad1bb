#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorlan {

struct RecipeTextFault {
    int line;  ///< from 1
    std::string text;
};

/// What the TOML library must not be given: more than a megabyte, keys of more than 16 parts (it descends into each),
/// quotes within a word, and letters outside ASCII where no string or comment holds them or behind a backslash. Nothing
/// when the text can be parsed.
std::optional<RecipeTextFault> faultOfRecipeText(std::string_view text);

}  // namespace vorlan
