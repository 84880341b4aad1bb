#include "plot/RenderFile.h"

#include <QBuffer>
#include <QHashSeed>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <cmath>

#include "model/Printable.h"
#include "plot/PaintPane.h"
#include "plot/PdfFile.h"

namespace vorlan {

namespace {

constexpr int kGap = 6;
constexpr auto kPixelsPerInch = static_cast<int>(kScreenDpi);
constexpr double kMetresPerInch = 0.0254;
// What stands in for the usual face where it is not installed.
constexpr char kUsualFaces[] = "Arial, 'Liberation Sans', Helvetica, sans-serif";
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

// size in pixels of the device, scale of them per pixel of the screen.
void paintPanes(QPaintDevice& device, std::span<const PaneContent> panes, const QSize& size, double scale) {
    QPainter painter(&device);
    painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    const std::vector<QRect> areas = arrange(panes.size(), size, static_cast<int>(std::lround(kGap * scale)));
    RenderOptions options;
    options.fontScale = scale;
    options.lengthScale = scale;
    for (std::size_t i = 0; i < std::min(panes.size(), areas.size()); ++i) {
        paintPane(painter, areas[i], panes[i], options);
    }
}

QString titleOf(std::span<const PaneContent> panes) {
    for (const PaneContent& pane : panes) {
        if (const auto* diagram = std::get_if<Diagram>(&pane)) {
            return QString::fromStdString(printable(diagram->frame.plotTitle)).simplified();
        }
        if (const auto* table = std::get_if<TableContent>(&pane)) {
            return QString::fromStdString(printable(table->title)).simplified();
        }
    }
    return {};
}

// Families as a list: the face may be missing where the file is shown.
QByteArray withFaceLists(QByteArray svg) {
    constexpr char kKey[] = "font-family=\"";
    for (qsizetype at = svg.indexOf(kKey); at >= 0; at = svg.indexOf(kKey, at + 1)) {
        const qsizetype from = at + static_cast<qsizetype>(sizeof kKey) - 1;
        const QByteArray face = svg.mid(from, svg.indexOf('"', from) - from);
        const bool usual = face.isEmpty() || face.compare("arial", Qt::CaseInsensitive) == 0;
        svg.replace(from, face.size(), usual ? QByteArray(kUsualFaces) : '\'' + face + "', " + kUsualFaces);
    }
    return svg;
}

void writePng(QBuffer& out, std::span<const PaneContent> panes, const QSize& size, double dpi) {
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) {
        return;
    }
    if (dpi != kScreenDpi) {
        image.setDotsPerMeterX(static_cast<int>(std::lround(dpi / kMetresPerInch)));
        image.setDotsPerMeterY(image.dotsPerMeterX());
    }
    paintPanes(image, panes, size, dpi / kScreenDpi);
    image.save(&out, "PNG");
}

void writeSvg(QBuffer& out, std::span<const PaneContent> panes, const QSize& size) {
    QByteArray svg;
    QBuffer buffer(&svg);
    QSvgGenerator generator;
    generator.setTitle(titleOf(panes));
    generator.setOutputDevice(&buffer);
    generator.setResolution(kPixelsPerInch);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size * kVectorScale));
    paintPanes(generator, panes, size * kVectorScale, kVectorScale);
    out.write(withFaceLists(svg));
}

void writePdf(QBuffer& out, std::span<const PaneContent> panes, const QSize& size) {
    QPdfWriter writer(&out);
    writer.setTitle(titleOf(panes));
    writer.setResolution(kPixelsPerInch * kVectorScale);
    writer.setPageMargins(QMarginsF());
    writer.setPageSize(QPageSize(QSizeF(size) / kPixelsPerInch, QPageSize::Inch, QString(), QPageSize::ExactMatch));
    paintPanes(writer, panes, size * kVectorScale, kVectorScale);
}

}  // namespace

QByteArray renderPanes(std::span<const PaneContent> panes, QSize size, RenderFormat format, double dpi) {
    QByteArray bytes;
    if (panes.empty() || size.width() < 1 || size.height() < 1) {
        return bytes;
    }
    QBuffer out(&bytes);
    out.open(QIODevice::WriteOnly);
    switch (format) {
        case RenderFormat::Png:
            writePng(out, panes, size, dpi);
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
