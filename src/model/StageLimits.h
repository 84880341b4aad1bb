#pragma once

namespace vorlan {

// Limits of this program: results beyond them would fill hundreds of megabytes.
inline constexpr int kMaximumBands = 10'000'000;
inline constexpr int kMaximumGrades = 10'000'000;
inline constexpr int kMaximumHoleSizes = 1'000'000;
inline constexpr int kMaximumPatternLag = 1'000'000;  ///< lags to one side of an event

}  // namespace vorlan
