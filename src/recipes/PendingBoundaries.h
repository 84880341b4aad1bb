#pragma once

#include "app/BoundaryStorage.h"
#include "recipes/Outputs.h"

namespace vorlan {

/// Boundary files of a run: what its steps write is held back with its other outputs, and read from there.
/// RunError Unreadable for a file that cannot be read.
class PendingBoundaries : public BoundaryStorage {
  public:
    explicit PendingBoundaries(PendingOutputs& outputs) : outputs_(outputs) {}
    void read(SBndFile& boundary) override;
    void write(const SBndFile& boundary) override;

  private:
    PendingOutputs& outputs_;
};

}  // namespace vorlan
