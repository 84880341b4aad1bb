#include "analysis/kernels/KernelSet.h"

#include <cstdlib>

#include "analysis/kernels/CompiledKernels.h"

namespace vorlan {

const KernelSet& kernelsOf(InstructionSet set) {
    switch (set) {
#if defined(__x86_64__)
        case InstructionSet::Avx512:
            return kernels_avx512::kKernels;
        case InstructionSet::Avx2:
            return kernels_avx2::kKernels;
#endif
        default:
            return kernels_plain::kKernels;
    }
}

const KernelSet& kernelsInUse() {
    static const KernelSet& chosen = []() -> const KernelSet& {
        const char* wanted = std::getenv("VORLAN_SIMD");
        return kernelsOf(chosenInstructionSet(wanted != nullptr ? wanted : ""));
    }();
    return chosen;
}

}  // namespace vorlan
