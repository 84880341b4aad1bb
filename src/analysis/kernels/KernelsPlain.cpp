#define VORLAN_KERNELS kernels_plain
#define VORLAN_KERNEL_SET Plain
#include "analysis/kernels/KernelLoops.inc"
