#pragma once

#include <cstddef>

namespace vorlan::test {

/// Bytes asked of operator new since the last call of resetAllocations().
void resetAllocations();
std::size_t allocatedBytes();

}  // namespace vorlan::test
