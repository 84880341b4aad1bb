// Any bytes as a boundary file: refused, or read, and what was read is written and read again the same.
#include <cstdlib>

#include "io/BoundaryFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    vorlan::SBndFile boundary;
    try {
        vorlan::readBoundary(boundary, {reinterpret_cast<const char*>(bytes), size});
    } catch (const vorlan::FileError&) {
        return 0;
    }
    vorlan::SBndFile again;
    vorlan::readBoundary(again, vorlan::boundaryText(boundary));
    if (again.NodeCount() != boundary.NodeCount()) {
        std::abort();
    }
    return 0;
}
