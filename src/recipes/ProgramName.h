#pragma once

namespace vorlan {

/// The program that runs recipes without a window, as it calls itself in messages.
inline constexpr const char* kBatchName = "vorlan-batch";

}  // namespace vorlan
