#pragma once

#include <string_view>
#include <vector>

namespace vorlan {

/// Processor instructions that the kernels are compiled for. Every set gives the same bytes.
enum class InstructionSet { Plain, Avx2, Avx512 };

/// The sets that this processor and operating system run, slowest first; Plain is always there.
std::vector<InstructionSet> availableInstructionSets();

/// "plain", "avx2" or "avx512".
const char* nameOf(InstructionSet set);

/// The set to use when the environment asks for name: that one where it is available, otherwise the best there is.
/// An empty or unknown name gives the best.
InstructionSet chosenInstructionSet(std::string_view name);

}  // namespace vorlan
