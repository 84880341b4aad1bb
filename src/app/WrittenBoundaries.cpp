#include "app/WrittenBoundaries.h"

namespace vorlan {

void WrittenBoundaries::restart(const SBndSet& boundaries) {
    nodesOfPath_.clear();
    for (const SBndFile& boundary : boundaries) {
        remember(boundary);
    }
}

void WrittenBoundaries::remember(const SBndFile& boundary) {
    nodesOfPath_[boundary.path] = {boundary.x, boundary.y, boundary.z};
}

bool WrittenBoundaries::holds(const SBndFile& boundary) const {
    const auto known = nodesOfPath_.find(boundary.path);
    return known == nodesOfPath_.end() || known->second == Nodes{boundary.x, boundary.y, boundary.z};
}

}  // namespace vorlan
