#include "analysis/kernels/InstructionSet.h"

#include <algorithm>

namespace vorlan {

std::vector<InstructionSet> availableInstructionSets() {
    std::vector<InstructionSet> sets{InstructionSet::Plain};
#if defined(__x86_64__)
    // The operating system must save the wide registers too; the builtin asks for both.
    const bool avx2 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
    if (avx2) {
        sets.push_back(InstructionSet::Avx2);
    }
    if (avx2 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") &&
        __builtin_cpu_supports("avx512vl")) {
        sets.push_back(InstructionSet::Avx512);
    }
#endif
    return sets;
}

const char* nameOf(InstructionSet set) {
    switch (set) {
        case InstructionSet::Avx2:
            return "avx2";
        case InstructionSet::Avx512:
            return "avx512";
        default:
            return "plain";
    }
}

InstructionSet chosenInstructionSet(std::string_view name) {
    const std::vector<InstructionSet> sets = availableInstructionSets();
    const auto wanted = std::find_if(sets.begin(), sets.end(), [name](InstructionSet s) { return nameOf(s) == name; });
    return wanted != sets.end() ? *wanted : sets.back();
}

}  // namespace vorlan
