#include "recipes/PendingBoundaries.h"

#include "recipes/RunError.h"

namespace vorlan {

void PendingBoundaries::read(SBndFile& boundary) {
    if (const std::string* text = outputs_.boundaryText(boundary.path)) {
        readBoundary(boundary, *text);
        return;
    }
    try {
        readBoundary(boundary);
    } catch (const FileError& error) {
        throw unreadable(textOf(error));
    }
}

void PendingBoundaries::write(const SBndFile& boundary) {
    folders_.require(boundary.path);
    outputs_.addBoundary(boundary.path, boundaryText(boundary));
}

}  // namespace vorlan
