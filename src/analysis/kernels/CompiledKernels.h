#pragma once

#include "analysis/kernels/KernelSet.h"

// The kernels as KernelLoops.inc makes them in each of its compilations.

namespace vorlan {

namespace kernels_plain {
extern const KernelSet kKernels;
}
#if defined(__x86_64__)
namespace kernels_avx2 {
extern const KernelSet kKernels;
}
namespace kernels_avx512 {
extern const KernelSet kKernels;
}
#endif

}  // namespace vorlan
