#pragma once

#include "model/FrameAttributes.h"
#include "model/Workspace.h"
#include "plot/Diagram.h"

namespace vorlan {

/// The measuring grid in a coordinate plane (0 XY, 1 XZ, 2 YZ): the nodes of every boundary and the sampling volumes of
/// all files, drawn with the given attributes.
Diagram describeGrid(const Workspace& workspace, int plane, const FrameAttributesType& frame);

}  // namespace vorlan
