#pragma once

#include "plot/CScreenUtils.h"
#include "plot/Diagram.h"
#include "plot/Shapes.h"
#include "plot/TextMeasure.h"

namespace vorlan {

/// Where a slope triangle stands in a drawn diagram.
struct SlopeTriangleShape {
    std::vector<Spot> slope;        ///< along y (x / from)^exponent, from the first limit to the second
    std::vector<Spot> legs;         ///< from the beginning along x, then along y to the end of the slope
    std::vector<PlacedText> texts;  ///< the name of the slope beside the upright leg
};

/// The triangle in pixels; empty where one of its corners has no place on the axes. On two logarithmic axes the
/// sloping side is straight, on others it is the curve of the power law.
SlopeTriangleShape slopeTriangleShape(const SlopeTriangle& triangle, const CScreenUtils& geometry,
                                      const FontDescription& font, const TextMeasure& measure, double lengthScale);

}  // namespace vorlan
