#pragma once

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

/// An entry of the outline that pages stand under; equal texts with other numbers are entries of their own.
struct OutlineEntry {
    int number = 0;
    std::string text;

    friend bool operator==(const OutlineEntry&, const OutlineEntry&) = default;
};

}  // namespace vorlan
