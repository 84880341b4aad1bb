#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "plot/PageContent.h"

namespace vorlan {

enum class RenderFormat { Png, Svg, Pdf };

inline constexpr double kScreenDpi = 96.0;

/// A printed page and where it stands in the document's outline, outermost entry first.
struct PlacedPage {
    PageContent content;
    std::vector<OutlineEntry> place;
};

/// Draws files, for programs that do not know the toolkit. Without a file that can be made the bytes are empty.
class Pictures {
  public:
    virtual ~Pictures() = default;
    /// As renderPanes().
    virtual std::string panes(std::span<const PaneContent> panes, int width, int height, RenderFormat format,
                              double dpi) = 0;
    /// The pages 0..count-1 as one PDF, each asked for when it is drawn.
    virtual std::string document(const std::string& title, const PaperSize& paper, std::size_t count,
                                 const std::function<PlacedPage(std::size_t)>& page) = 0;
};

/// Makes them when something is to be drawn.
using PicturesSource = std::function<std::unique_ptr<Pictures>()>;

}  // namespace vorlan
