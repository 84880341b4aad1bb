#pragma once

#include "app/BoundaryStorage.h"
#include "batch/Outputs.h"

namespace vorlan {

/// Boundary files of a run: what its steps write is held back with its other outputs, and read from there.
/// BatchError Unreadable for a file that cannot be read.
class PendingBoundaries : public BoundaryStorage {
  public:
    explicit PendingBoundaries(PendingOutputs& outputs) : outputs_(outputs) {}
    void read(SBndFile& boundary) override;
    void write(const SBndFile& boundary) override;

  private:
    PendingOutputs& outputs_;
};

}  // namespace vorlan
