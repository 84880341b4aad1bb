#pragma once

#include <QPainter>

#include "plot/PageContent.h"

namespace vorlan {

/// Paints the page onto paper whose left top corner is the painter's origin, dpi of the painter's pixels per inch.
void paintPage(QPainter& painter, const PageContent& page, double dpi);

/// The part of the paper that its panes and texts cover, mm.
QRectF printedArea(const PageContent& page);

}  // namespace vorlan
