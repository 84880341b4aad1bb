#pragma once

#include "plot/CScreenUtils.h"
#include "plot/Diagram.h"
#include "plot/Shapes.h"
#include "plot/TextMeasure.h"

namespace vorlan {

/// Whether something that is drawn for a series of the diagram (strokes, markers, bars, arrows), a slope triangle or
/// the name of a point comes into the box.
bool coversData(const Box& box, const Diagram& diagram, const CScreenUtils& geometry, const TextMeasure& measure,
                double lengthScale);

}  // namespace vorlan
