#pragma once

namespace vorlan {

inline constexpr double kGravity = 981.0;  ///< cm/s^2
inline constexpr double kMetresPerMillimetre = 0.001;

}  // namespace vorlan
