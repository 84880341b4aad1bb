#include "plot/PaintPage.h"

#include <algorithm>
#include <cmath>

#include "plot/PaintPane.h"
#include "plot/QtText.h"

namespace vorlan {

namespace {

constexpr double kMmPerInch = 25.4;
// Whole pixels are painted; fewer of them for a pixel of the screen would spoil letters and curves.
constexpr double kSmallestDetail = 5.0;

/// A part of the page in painted pixels: those of the page without its reduction, which comes last. So a reduced pane
/// is laid out as the full one, and shows what that shows.
struct PaintedPart {
    QRect area;     ///< at the painter's origin
    double pixel;   ///< size of a painted pixel on the page
    double detail;  ///< painted pixels per pixel of the screen
};

PaintedPart partOf(const PageBox& box, double scale, double unreduced) {
    const double detail = std::max(unreduced, kSmallestDetail);
    const auto pixels = [&](double length) { return static_cast<int>(std::lround(length * detail / scale)); };
    return {{0, 0, pixels(box.width), pixels(box.height)}, scale / detail, detail};
}

void enter(QPainter& painter, const PageBox& box, const PaintedPart& part) {
    painter.translate(box.left, box.top);
    painter.scale(part.pixel, part.pixel);
}

PaintedPart marginPart(const PageLayout& layout, const PageBox& box) {
    return partOf(box, layout.marginScale, layout.marginScale);
}

void paintMarginText(QPainter& painter, const PageLayout& layout, const PageBox& box, const std::string& text) {
    if (text.empty()) {
        return;
    }
    const PaintedPart part = marginPart(layout, box);
    painter.save();
    enter(painter, box, part);
    painter.setPen(Qt::black);
    drawFitted(painter, part.area, QString::fromStdString(text), qtFont(FontDescription(), part.detail));
    painter.restore();
}

QRectF textArea(const PageLayout& layout, const PageBox& box, const std::string& bytes) {
    const PaintedPart part = marginPart(layout, box);
    const QString text = QString::fromStdString(bytes);
    const QFont font = fittedFont(text, part.area.size(), qtFont(FontDescription(), part.detail), nullptr);
    const QRectF covered = fittedBox(text, part.area, font, nullptr);
    return {box.left + covered.x() * part.pixel, box.top + covered.y() * part.pixel, covered.width() * part.pixel,
            covered.height() * part.pixel};
}

}  // namespace

void paintPage(QPainter& painter, const PageContent& page, double dpi) {
    painter.save();
    painter.scale(dpi / kPageDpi, dpi / kPageDpi);
    const PageLayout& layout = page.layout;
    paintMarginText(painter, layout, layout.header, page.header);
    for (std::size_t i = 0; i < std::min(layout.panes.size(), page.panes.size()); ++i) {
        const PaintedPart part = partOf(layout.panes[i].box, layout.scale, layout.marginScale);
        painter.save();
        enter(painter, layout.panes[i].box, part);
        paintPane(painter, part.area, page.panes[i], {.fontScale = part.detail, .lengthScale = part.detail});
        painter.restore();
    }
    paintMarginText(painter, layout, layout.footer, page.footer);
    painter.restore();
}

QRectF printedArea(const PageContent& page) {
    const PageLayout& layout = page.layout;
    QRectF area;
    for (const PageLayout::PlacedPane& placed : layout.panes) {
        area |= QRectF(placed.box.left, placed.box.top, placed.box.width, placed.box.height);
    }
    if (!page.header.empty()) {
        area |= textArea(layout, layout.header, page.header);
    }
    if (!page.footer.empty()) {
        area |= textArea(layout, layout.footer, page.footer);
    }
    const double mm = kMmPerInch / kPageDpi;
    return {area.x() * mm, area.y() * mm, area.width() * mm, area.height() * mm};
}

}  // namespace vorlan
