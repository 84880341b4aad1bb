#pragma once

#include <cstddef>
#include <type_traits>

namespace vorlan {

/// Containers count in std::size_t, the arrays of the file, settings and dialogs in int: the two meet here. A negative
/// number never indexes anything, so nothing checks for one.
template <class Number>
requires std::is_integral_v<Number> || std::is_enum_v<Number>
constexpr std::size_t asSize(Number number) {
    return static_cast<std::size_t>(number);
}

template <class Number>
requires std::is_integral_v<Number> || std::is_enum_v<Number>
constexpr int asInt(Number number) {
    return static_cast<int>(number);
}

}  // namespace vorlan
