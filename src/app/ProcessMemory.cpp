#include "app/ProcessMemory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace vorlan {

namespace {

// Columns of a million samples that a calculation writes anew take longer to get than to fill when they come in pages
// of 4 KiB. So many addresses of the heap are taken at once, and large pages are asked for where they come to be used.
// That costs no memory. What needs little stays below them. The system may refuse.
void wantLargePages() {
#if defined(__GLIBC__) && defined(MADV_HUGEPAGE)
    constexpr int kAddresses = 448 << 20;
    constexpr std::size_t kBeginning = std::size_t{4} << 20;
    constexpr std::uintptr_t kPage = 4096;
    mallopt(M_TOP_PAD, kAddresses);
    if (void* beginning = std::malloc(kBeginning)) {
        const std::uintptr_t from = (reinterpret_cast<std::uintptr_t>(beginning) + kBeginning) / kPage * kPage;
        const std::uintptr_t to = reinterpret_cast<std::uintptr_t>(::sbrk(0));
        if (to > from && to - from <= kAddresses + kBeginning) {
            ::madvise(reinterpret_cast<void*>(from), to - from, MADV_HUGEPAGE);
        }
        std::free(beginning);
    }
#endif
}

}  // namespace

void keepFreedMemory() {
#if defined(__GLIBC__)
    // The window calculates in a thread, which shall take and leave its columns here, too.
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 512 << 20);
    wantLargePages();
    // Addresses only: columns that follow each other lie in one run, which can have large pages.
    mallopt(M_TOP_PAD, 64 << 20);
#endif
}

}  // namespace vorlan
