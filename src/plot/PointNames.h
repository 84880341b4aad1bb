#pragma once

#include <vector>

#include "plot/CScreenUtils.h"
#include "plot/Diagram.h"
#include "plot/Shapes.h"
#include "plot/TextMeasure.h"

namespace vorlan {

/// Names beside points of the data: on the first of eight sides where a name covers no other name, no marker, no arrow
/// and no line. A name without such a side is left out. Names stay inside the plot area.
std::vector<PlacedText> pointTexts(const Diagram& diagram, const CScreenUtils& geometry, const TextMeasure& measure,
                                   double lengthScale);

/// A name and the point that it stands beside.
struct PointName {
    PlacedText text;
    double x;  ///< of the point, data units
    double y;
    Spot at;  ///< the same in pixels
};

/// The same for a plot area that is still to be fitted around the names: they may leave it.
std::vector<PointName> freePointNames(const Diagram& diagram, const CScreenUtils& geometry, const TextMeasure& measure,
                                      double lengthScale);

}  // namespace vorlan
