#pragma once

#include <cstddef>

namespace vorlan::test {

/// Bytes asked of operator new since the last call of resetAllocations().
void resetAllocations();
std::size_t allocatedBytes();

/// operator new fails once after so many calls.
void failAllocation(int after);
/// Whether it has failed; it does not any more.
bool allocationFailed();

}  // namespace vorlan::test
