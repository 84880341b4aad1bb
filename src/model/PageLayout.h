#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/PageAttributes.h"
#include "model/Refusal.h"
#include "model/Stages.h"

namespace vorlan {

/// A sheet as it lies before the reader, cm.
struct PaperSize {
    double width = 21.0;
    double height = 29.7;

    friend bool operator==(const PaperSize&, const PaperSize&) = default;
};

/// A part of the page, device pixels from the left top corner of the paper.
struct PageBox {
    double left = 0.0;
    double top = 0.0;
    double width = 0.0;
    double height = 0.0;

    double right() const { return left + width; }
    double bottom() const { return top + height; }
};

/// Where everything of a page stands. In one column the panes follow each other from left top, left bottom, right top
/// to right bottom, each at the left margin; two by two they stand as on the screen, columns as wide and rows as high
/// as their largest pane. A pane that is not ticked takes no room, nor does a row or column of such panes. The inner
/// margin lies between neighbours.
///
/// Panes that exceed the room between the margins are reduced together, with the gaps between them, to
/// reduction = min(1, room width / width, room height / height).
struct PageLayout {
    struct PlacedPane {
        Pane pane;
        PageBox box;
        bool fits = true;  ///< it would stand between the margins unreduced
    };

    PaperSize paper;
    std::vector<PlacedPane> panes;
    PageBox header;  ///< the top margin between the side margins; its text stands in the middle
    PageBox footer;  ///< the bottom margin likewise
    double reduction = 1.0;
    /// Device pixels per logical pixel of fonts, ticks, pens and markers: font scale * dpi / 600 * reduction in panes,
    /// without the reduction in header and footer.
    double scale = 1.0;
    double marginScale = 1.0;
};

/// Why a page of these attributes cannot be printed on any paper; empty when it can. Its fields are "panes", "left",
/// "right", "top", "bottom", "inner", "font_scale" and the names of panes ("left-top") with " height" or " width".
Refusal refusalOf(const PageAtrType& page);

/// Why it cannot be printed on this paper; empty when it can.
Refusal refusalOf(const PageAtrType& page, const PaperSize& paper);

/// The page at a resolution of dpi dots per inch. InvalidArgument for a page that is refused.
PageLayout layoutPage(const PageAtrType& page, const PaperSize& paper, double dpi);

/// The flag and the size of a pane's place on the page.
std::int32_t PageAtrType::*printFlagOf(Pane pane);
PagePaneSize PageAtrType::*sizeOf(Pane pane);

}  // namespace vorlan
