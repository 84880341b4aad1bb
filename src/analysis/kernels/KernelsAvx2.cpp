#define VORLAN_KERNELS kernels_avx2
#define VORLAN_KERNEL_SET Avx2
#include "analysis/kernels/KernelLoops.inc"
