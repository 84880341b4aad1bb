#pragma once

#include "plot/CScreenUtils.h"
#include "plot/Diagram.h"
#include "plot/Shapes.h"

namespace vorlan {

/// Whether something that is drawn for a series of the diagram (strokes, markers, bars, arrows) comes into the box.
bool coversData(const Box& box, const Diagram& diagram, const CScreenUtils& geometry, double lengthScale);

}  // namespace vorlan
