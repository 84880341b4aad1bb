#pragma once

#include <string>
#include <vector>

#include "model/SAdvSet.h"
#include "model/SBndSet.h"

namespace vorlan {

/// Sampling volumes of one data file: one entry per probe, in thousandths of a metre.
struct SSvmFile {
    /// Coordinate 0, 1 or 2 (x, y, z) of the probes.
    const SArray& Axis(std::size_t axis) const { return axis == 0 ? x : axis == 1 ? y : z; }

    std::string name;
    SArray x{kCoordinateScale};
    SArray y{kCoordinateScale};
    SArray z{kCoordinateScale};
};

/// Sampling volumes of all data files; derived on demand, never stored.
class SSvmSet {
  public:
    /// One entry per data file, named after the part of the file's name behind its last backslash. The probe
    /// coordinates are thousandths already: their integer part is stored as it is.
    void Build(const SAdvSet& set);
    const std::vector<SSvmFile>& files() const { return files_; }

  private:
    std::vector<SSvmFile> files_;
};

}  // namespace vorlan
