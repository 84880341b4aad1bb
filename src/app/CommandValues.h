#pragma once

#include <array>
#include <optional>

namespace vorlan {

/// X, Y, Z in metres.
using Position = std::array<double, 3>;
/// The coordinates that change; the others stay to the last bit.
using PositionChange = std::array<std::optional<double>, 3>;

}  // namespace vorlan
