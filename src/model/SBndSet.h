#pragma once

#include <string>

#include "model/GrowArray.h"
#include "model/SArray.h"

namespace vorlan {

/// Resolution of coordinate columns: thousandths.
inline constexpr double kCoordinateScale = 0.001;

/// One flow boundary: a line of nodes, tied to a text file. Coordinates in metres, three decimals, truncated.
class SBndFile : public SObject {
  public:
    const char* ClassName() const override { return "SBndFile"; }
    void Serialize(Archive& archive) override;

    int NodeCount() const { return x.GetSize(); }
    /// Coordinate 0, 1 or 2 (x, y, z) of the nodes.
    SArray& Axis(std::size_t axis) { return axis == 0 ? x : axis == 1 ? y : z; }
    const SArray& Axis(std::size_t axis) const { return axis == 0 ? x : axis == 1 ? y : z; }
    void SetNode(int index, double nodeX, double nodeY, double nodeZ);
    /// Nodes from index on move up by one. InvalidArgument beyond the end.
    void InsertNode(int index, double nodeX, double nodeY, double nodeZ);
    void RemoveNode(int index);

    std::string name;
    std::string path;
    SArray x{kCoordinateScale};
    SArray y{kCoordinateScale};
    SArray z{kCoordinateScale};

    friend bool operator==(const SBndFile&, const SBndFile&) = default;
};

/// The boundaries of a workspace.
class SBndSet : public GrowArray<SBndFile> {
  public:
    const char* ClassName() const override { return "SBndSet"; }
    void Serialize(Archive& archive) override;
};

}  // namespace vorlan
