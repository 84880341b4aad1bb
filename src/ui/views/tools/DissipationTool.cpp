#include "ui/views/tools/DissipationTool.h"

#include <QPainter>

#include "model/Index.h"
#include "stages/TurbulenceReadOut.h"
#include "ui/views/CVorl_ADVView.h"

namespace vorlan {

namespace {

constexpr PixelImage::Colour kLineColour = 0xFF000000U;

PixelImage pixelsOf(QImage& image) {
    static_assert(sizeof(QRgb) == sizeof(PixelImage::Colour));
    return {reinterpret_cast<PixelImage::Colour*>(image.bits()), image.width(), image.height(),
            image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))};
}

}  // namespace

DissipationTool::DissipationTool(CVorl_ADVView& view, DissipationSource source, int unitSelector,
                                 double convectiveVelocity)
    : PaneTool(view), source_(source), unitSelector_(unitSelector), convectiveVelocity_(convectiveVelocity) {}

void DissipationTool::begin() {
    const std::optional<CScreenUtils> geometry = view().geometry();
    if (!geometry) {
        Q_EMIT left();
        return;
    }
    const CScreenUtils& g = *geometry;
    extractor_.Initialise(g.originX, g.originY, g.xMin, g.yMin, g.xScale, g.yScale, asInt(g.scaleType), unitSelector_,
                          convectiveVelocity_);
    anchor_ = {g.originX + g.width / 3, g.originY - g.height / 2};
    offset_.reset();
    image_ = QImage(view().size(), QImage::Format_ARGB32_Premultiplied);
    image_.fill(Qt::transparent);
    PixelImage pixels = pixelsOf(image_);
    extractor_.SaveBackground(source_, pixels, anchor_.x(), anchor_.y());
    extractor_.DrawLine(source_, pixels, anchor_.x(), anchor_.y(), kLineColour);
    view().update();
    tell();
}

void DissipationTool::paint(QPainter& painter) {
    painter.drawImage(0, 0, image_);
}

void DissipationTool::moveAnchor(QPoint to) {
    PixelImage pixels = pixelsOf(image_);
    extractor_.RestoreBackground(source_, pixels, anchor_.x(), anchor_.y());
    anchor_ = to;
    extractor_.SaveBackground(source_, pixels, anchor_.x(), anchor_.y());
    extractor_.DrawLine(source_, pixels, anchor_.x(), anchor_.y(), kLineColour);
    view().update();
    tell();
}

void DissipationTool::tell() {
    std::string text = dissipationReadOut(extractor_.ReadingAt(source_, anchor_.x(), anchor_.y()),
                                          extractor_.DissipationRate(source_, anchor_.x(), anchor_.y()));
    if (const auto* diagram = std::get_if<Diagram>(&view().content())) {
        text += "   " + slopesText(*diagram, extractor_.XValue(anchor_.x()),
                                   extractor_.XValue(anchor_.x() + CDisRateExtractor::kLineLength - 1));
    }
    Q_EMIT readOut(QString::fromStdString(text));
}

bool DissipationTool::move(QPoint position, bool) {
    if (!offset_) {
        offset_ = position - anchor_;
    }
    moveAnchor(position - *offset_);
    return true;
}

void DissipationTool::release(QPoint) {
    tell();
}

void DissipationTool::moveBy(QPoint step, bool) {
    // The mouse takes the line up where the keys have left it.
    offset_.reset();
    moveAnchor(anchor_ + step);
}

void DissipationTool::accept() {
    QString slopes;
    if (const auto* diagram = std::get_if<Diagram>(&view().content())) {
        slopes = QString::fromStdString(
            slopeDistancesText(*diagram, extractor_.XValue(anchor_.x()),
                               extractor_.XValue(anchor_.x() + CDisRateExtractor::kLineLength - 1), source_));
    }
    Q_EMIT chosen(extractor_.ReadingAt(source_, anchor_.x(), anchor_.y()), slopes);
}

}  // namespace vorlan
