#pragma once

#include <QPainter>
#include <string>
#include <vector>

#include "model/PageLayout.h"
#include "plot/PaneContent.h"

namespace vorlan {

/// Dots per inch at which a page is laid out, whatever the resolution of the device: printers, files and the preview
/// show the same page.
inline constexpr double kPageDpi = 600.0;

/// What stands on a printed page, texts as UTF-8.
struct PageContent {
    PageLayout layout;               ///< at kPageDpi
    std::vector<PaneContent> panes;  ///< one for every pane of the layout
    std::string header;
    std::string footer;
};

/// Paints the page onto paper whose left top corner is the painter's origin, dpi of the painter's pixels per inch.
void paintPage(QPainter& painter, const PageContent& page, double dpi);

/// The part of the paper that its panes and texts cover, mm.
QRectF printedArea(const PageContent& page);

}  // namespace vorlan
