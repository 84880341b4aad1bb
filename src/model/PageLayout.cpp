#include "model/PageLayout.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "model/Errors.h"
#include "model/Index.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr double kCmPerInch = 2.54;
constexpr double kReferenceDpi = 600.0;  // the font scale counts dots of such a printer
constexpr double kLargestLength = 1000.0;
constexpr double kLargestFontScale = 1000.0;
constexpr double kSmallestReduction = 0.05;
constexpr double kRounding = 1e-9;  // of sums of decimal fractions
// Less than a line of small print.
constexpr double kSmallestTextMargin = 0.3;

constexpr std::array<Pane, kPaneCount> kPanes = {Pane::LeftTop, Pane::LeftBottom, Pane::RightTop, Pane::RightBottom};
constexpr std::array<const char*, kPaneCount> kPaneWords = {"left-top", "left-bottom", "right-top", "right-bottom"};
constexpr std::array<const char*, kPaneCount> kHeightFields = {"left-top height", "left-bottom height",
                                                               "right-top height", "right-bottom height"};
constexpr std::array<const char*, kPaneCount> kWidthFields = {"left-top width", "left-bottom width", "right-top width",
                                                              "right-bottom width"};

bool isTicked(const PageAtrType& page, Pane pane) {
    return page.*printFlagOf(pane) != 0;
}

bool isLength(double value) {
    return value >= 0.0 && value <= kLargestLength;
}

bool isBlank(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos;
}

// Row and column of a pane on the page.
int rowOf(const PageAtrType& page, Pane pane) {
    const int number = asInt(pane);
    return page.layout == 0 ? number % 2 : number;
}

int columnOf(const PageAtrType& page, Pane pane) {
    return page.layout == 0 ? asInt(pane) / 2 : 0;
}

/// Sizes of the rows or of the columns, cm; 0 for one that holds no pane.
class Tracks {
  public:
    explicit Tracks(double gap) : gap_(gap) {}
    void hold(int index, double size) {
        double& track = sizes_[asSize(index)];
        track = std::max(track, size);
    }
    /// Where a track begins; the end of the last one for index kPaneCount.
    double startOf(int index) const {
        double start = 0.0;
        for (int i = 0; i < index; ++i) {
            const double size = sizes_[asSize(i)];
            start += size > 0.0 ? size + gap_ : 0.0;
        }
        return start;
    }
    double total() const { return startOf(kPaneCount) - gap_; }

  private:
    double gap_;
    std::array<double, kPaneCount> sizes_{};
};

/// The panes unreduced, cm from the corner of the room.
struct Arrangement {
    explicit Arrangement(const PageAtrType& page) : rows(page.innerMargin), columns(page.innerMargin) {
        for (const Pane pane : kPanes) {
            if (isTicked(page, pane)) {
                rows.hold(rowOf(page, pane), (page.*sizeOf(pane)).height);
                columns.hold(columnOf(page, pane), (page.*sizeOf(pane)).width);
            }
        }
    }
    double reductionInto(double width, double height) const {
        const double share = std::min(width / columns.total(), height / rows.total());
        return share < 1.0 - kRounding ? share : 1.0;
    }

    Tracks rows;
    Tracks columns;
};

double roomWidth(const PageAtrType& page, const PaperSize& paper) {
    return paper.width - page.leftMargin - page.rightMargin;
}

double roomHeight(const PageAtrType& page, const PaperSize& paper) {
    return paper.height - page.topMargin - page.bottomMargin;
}

}  // namespace

std::int32_t PageAtrType::*printFlagOf(Pane pane) {
    constexpr std::array<std::int32_t PageAtrType::*, kPaneCount> flags = {
        &PageAtrType::printLeftTop, &PageAtrType::printLeftBottom, &PageAtrType::printRightTop,
        &PageAtrType::printRightBottom};
    return flags[asSize(pane)];
}

PagePaneSize PageAtrType::*sizeOf(Pane pane) {
    constexpr std::array<PagePaneSize PageAtrType::*, kPaneCount> sizes = {
        &PageAtrType::leftTop, &PageAtrType::leftBottom, &PageAtrType::rightTop, &PageAtrType::rightBottom};
    return sizes[asSize(pane)];
}

Refusal refusalOf(const PageAtrType& page) {
    if (std::none_of(kPanes.begin(), kPanes.end(), [&](Pane pane) { return isTicked(page, pane); })) {
        return {"No pane is ticked: there is nothing to print.", "panes"};
    }
    const std::pair<const char*, double> margins[] = {
        {"left", page.leftMargin}, {"right", page.rightMargin}, {"top", page.topMargin}, {"bottom", page.bottomMargin}};
    for (const auto& [side, margin] : margins) {
        if (!isLength(margin)) {
            return {formatted("The %s margin must lie between 0 and %g cm.", side, kLargestLength), side};
        }
    }
    for (std::size_t i = 0; i < kPanes.size(); ++i) {
        const PagePaneSize& size = page.*sizeOf(kPanes[i]);
        for (const bool height : {true, false}) {
            const double value = height ? size.height : size.width;
            if (isTicked(page, kPanes[i]) && !(isLength(value) && value > 0.0)) {
                return {formatted("The %s of the %s pane must be above 0 and at most %g cm.",
                                  height ? "height" : "width", kPaneWords[i], kLargestLength),
                        height ? kHeightFields[i] : kWidthFields[i]};
            }
        }
    }
    if (!isLength(page.innerMargin)) {
        return {formatted("The inner margin must lie between 0 and %g cm.", kLargestLength), "inner"};
    }
    if (!(page.fontScale > 0.0 && page.fontScale <= kLargestFontScale)) {
        return {formatted("The font size scale must be above 0 and at most %g.", kLargestFontScale), "font_scale"};
    }
    return {};
}

Refusal refusalOf(const PageAtrType& page, const PaperSize& paper) {
    if (Refusal refusal = refusalOf(page); !refusal.empty()) {
        return refusal;
    }
    const double width = roomWidth(page, paper);
    const double height = roomHeight(page, paper);
    const std::string onPaper = formatted("on paper of %g by %g cm", paper.width, paper.height);
    if (!(width > 0.0 && height > 0.0)) {
        return {"The margins leave no room for the panes " + onPaper + ".", width > 0.0 ? "top" : "left"};
    }
    if (Arrangement(page).reductionInto(width, height) < kSmallestReduction) {
        return {formatted("The panes are too large %s: they would shrink to less than %g %%.", onPaper.c_str(),
                          100.0 * kSmallestReduction),
                "panes"};
    }
    if (!isBlank(page.header) && page.topMargin < kSmallestTextMargin) {
        return {formatted("The header needs a top margin of %g cm or more.", kSmallestTextMargin), "top"};
    }
    if (!isBlank(page.footer) && page.bottomMargin < kSmallestTextMargin) {
        return {formatted("The footer needs a bottom margin of %g cm or more.", kSmallestTextMargin), "bottom"};
    }
    return {};
}

PageLayout layoutPage(const PageAtrType& page, const PaperSize& paper, double dpi) {
    if (!refusalOf(page, paper).empty() || !(dpi > 0.0)) {
        throw InvalidArgument();
    }
    const double dots = dpi / kCmPerInch;
    const double width = roomWidth(page, paper);
    const double height = roomHeight(page, paper);
    const Arrangement arrangement(page);
    PageLayout layout;
    layout.paper = paper;
    layout.reduction = arrangement.reductionInto(width, height);
    layout.marginScale = page.fontScale * dpi / kReferenceDpi;
    layout.scale = layout.marginScale * layout.reduction;
    layout.header = {page.leftMargin * dots, 0.0, width * dots, page.topMargin * dots};
    layout.footer = {page.leftMargin * dots, (paper.height - page.bottomMargin) * dots, width * dots,
                     page.bottomMargin * dots};
    const double reduced = dots * layout.reduction;
    for (const Pane pane : kPanes) {
        if (isTicked(page, pane)) {
            const PagePaneSize& size = page.*sizeOf(pane);
            const double left = arrangement.columns.startOf(columnOf(page, pane));
            const double top = arrangement.rows.startOf(rowOf(page, pane));
            layout.panes.push_back(
                {pane,
                 {page.leftMargin * dots + left * reduced, page.topMargin * dots + top * reduced, size.width * reduced,
                  size.height * reduced},
                 left + size.width <= width * (1.0 + kRounding) && top + size.height <= height * (1.0 + kRounding)});
        }
    }
    return layout;
}

}  // namespace vorlan
