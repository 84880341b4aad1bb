#pragma once

#include <QColor>
#include <QPainter>
#include <QPen>
#include <vector>

#include "plot/Diagram.h"
#include "plot/Shapes.h"

namespace vorlan {

/// How every marker of a series looks.
struct MarkerLook {
    MarkerKind kind;
    int size;  ///< pixels
    QPen pen;
    QColor background;  ///< the inside
};

/// Paints a marker at every spot, the later ones over the earlier ones. Crowds of markers on pixels are copies of one:
/// the same pixels in a fraction of the time.
void paintMarkers(QPainter& painter, const std::vector<Spot>& spots, const MarkerLook& look);

}  // namespace vorlan
