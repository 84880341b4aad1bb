#include "plot/RenderFile.h"

#include <QBuffer>
#include <QHashSeed>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "plot/PaintPane.h"
#include "plot/PdfFile.h"

namespace vorlan {

namespace {

constexpr int kGap = 6;
constexpr int kPixelsPerInch = 96;
// Positions are whole pixels; files of lines hold several per pixel of the picture so that curves stay smooth.
constexpr int kVectorScale = 4;

std::vector<QRect> arrange(std::size_t panes, const QSize& size, int gap) {
    if (panes == 1) {
        return {QRect(QPoint(0, 0), size)};
    }
    const int left = (size.width() - gap) / 2;
    const int top = (size.height() - gap) / 2;
    const QSize quarter(left, top);
    return {QRect(QPoint(0, 0), quarter), QRect(QPoint(0, top + gap), quarter), QRect(QPoint(left + gap, 0), quarter),
            QRect(QPoint(left + gap, top + gap), quarter)};
}

void paintPanes(QPaintDevice& device, std::span<const PaneContent> panes, const QSize& size, int scale) {
    QPainter painter(&device);
    painter.fillRect(QRect(QPoint(0, 0), size * scale), Qt::white);
    const std::vector<QRect> areas = arrange(panes.size(), size * scale, kGap * scale);
    RenderOptions options;
    options.fontScale = scale;
    options.lengthScale = scale;
    for (std::size_t i = 0; i < std::min(panes.size(), areas.size()); ++i) {
        paintPane(painter, areas[i], panes[i], options);
    }
}

void writePng(QBuffer& out, std::span<const PaneContent> panes, const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) {
        return;
    }
    paintPanes(image, panes, size, 1);
    image.save(&out, "PNG");
}

void writeSvg(QBuffer& out, std::span<const PaneContent> panes, const QSize& size) {
    QSvgGenerator generator;
    generator.setOutputDevice(&out);
    generator.setResolution(kPixelsPerInch);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size * kVectorScale));
    paintPanes(generator, panes, size, kVectorScale);
}

void writePdf(QBuffer& out, std::span<const PaneContent> panes, const QSize& size) {
    QPdfWriter writer(&out);
    writer.setResolution(kPixelsPerInch * kVectorScale);
    writer.setPageMargins(QMarginsF());
    writer.setPageSize(QPageSize(QSizeF(size) / kPixelsPerInch, QPageSize::Inch, QString(), QPageSize::ExactMatch));
    paintPanes(writer, panes, size, kVectorScale);
}

}  // namespace

QByteArray renderPanes(std::span<const PaneContent> panes, QSize size, RenderFormat format) {
    QByteArray bytes;
    if (panes.empty() || size.width() < 1 || size.height() < 1) {
        return bytes;
    }
    QBuffer out(&bytes);
    out.open(QIODevice::WriteOnly);
    switch (format) {
        case RenderFormat::Png:
            writePng(out, panes, size);
            break;
        case RenderFormat::Svg:
            writeSvg(out, panes, size);
            break;
        case RenderFormat::Pdf:
            // The platform embeds its fonts in the order of a hash table.
            QHashSeed::setDeterministicGlobalSeed();
            writePdf(out, panes, size);
            QHashSeed::resetRandomGlobalSeed();
            return finishedPdf(bytes, {});
    }
    return bytes;
}

}  // namespace vorlan
