#include "io/AllocationWatch.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<std::size_t> allocated{0};
std::atomic<int> allocationsLeft{-1};
}  // namespace

void* operator new(std::size_t size) {
    allocated += size;
    if (allocationsLeft >= 0 && --allocationsLeft < 0) {
        throw std::bad_alloc();
    }
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

// The pair belongs together; the compiler sees one half of it where it inlines the other.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace vorlan::test {

void resetAllocations() {
    allocated = 0;
}

std::size_t allocatedBytes() {
    return allocated;
}

void failAllocation(int after) {
    allocationsLeft = after;
}

bool allocationFailed() {
    const bool failed = allocationsLeft < 0;
    allocationsLeft = -1;
    return failed;
}

}  // namespace vorlan::test
