#pragma once

#include <string>
#include <string_view>

namespace vorlan {

/// Why values may not be taken, and which of them is to blame: the name that recipes give it. Empty when they may.
struct Refusal {
    std::string text;
    std::string_view field;

    bool empty() const { return text.empty(); }
};

}  // namespace vorlan
