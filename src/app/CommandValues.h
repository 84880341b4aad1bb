#pragma once

#include <array>
#include <optional>

namespace vorlan {

/// X, Y, Z in metres.
using Position = std::array<double, 3>;
/// The coordinates that change; the others stay to the last bit.
using PositionChange = std::array<std::optional<double>, 3>;

/// The convective velocity of Taylor's hypothesis.
struct MeanVelocitySettings {
    static constexpr double kMinimum = 0.005;
    static constexpr double kMaximum = 1000.0;

    int mode = 0;         ///< 0 averaged flow velocity, 1 the user's value
    double value = 10.0;  ///< cm/s
};

}  // namespace vorlan
