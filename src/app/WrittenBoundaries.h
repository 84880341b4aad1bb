#pragma once

#include <array>
#include <map>
#include <string>

#include "model/SBndSet.h"

namespace vorlan {

/// The nodes that the files of boundaries hold, as far as the session knows: those read from a file or written to it
/// last. A boundary that was loaded with its workspace counts as what its file holds.
class WrittenBoundaries {
  public:
    /// Forgets what was known; every boundary of the set counts as written.
    void restart(const SBndSet& boundaries);
    /// The file at the boundary's path holds these nodes.
    void remember(const SBndFile& boundary);
    /// False for a boundary whose nodes are not those of its file.
    bool holds(const SBndFile& boundary) const;

  private:
    using Nodes = std::array<SArray, 3>;
    std::map<std::string, Nodes> nodesOfPath_;
};

}  // namespace vorlan
