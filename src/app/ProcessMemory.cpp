#include "app/ProcessMemory.h"

#include <cstdlib>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace vorlan {

void keepFreedMemory() {
#if defined(__GLIBC__)
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 512 << 20);
    // Addresses only: columns that follow each other lie in one run, which can have large pages.
    mallopt(M_TOP_PAD, 64 << 20);
#endif
}

}  // namespace vorlan
