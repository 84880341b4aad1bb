#pragma once

#include "io/BoundaryFile.h"

namespace vorlan {

/// Where the text files of boundaries are read and written: on the disk, unless the document's user holds files back.
/// Throws as readBoundary() and writeBoundary() do.
class BoundaryStorage {
  public:
    virtual ~BoundaryStorage() = default;
    virtual void read(SBndFile& boundary) { readBoundary(boundary); }
    virtual void write(const SBndFile& boundary) { writeBoundary(boundary); }
};

}  // namespace vorlan
