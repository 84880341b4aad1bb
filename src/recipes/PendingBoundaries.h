#pragma once

#include "app/BoundaryStorage.h"
#include "recipes/Outputs.h"

namespace vorlan {

/// Boundary files of a run: what its steps write is held back with its other outputs, and read from there.
/// RunError Unreadable for a file that cannot be read, Usage for one outside of the folders.
class PendingBoundaries : public BoundaryStorage {
  public:
    PendingBoundaries(PendingOutputs& outputs, const OutputFolders& folders) : outputs_(outputs), folders_(folders) {}
    void read(SBndFile& boundary) override;
    void write(const SBndFile& boundary) override;

  private:
    PendingOutputs& outputs_;
    const OutputFolders& folders_;
};

}  // namespace vorlan
