#define VORLAN_KERNELS kernels_avx512
#define VORLAN_KERNEL_SET Avx512
#include "analysis/kernels/KernelLoops.inc"
