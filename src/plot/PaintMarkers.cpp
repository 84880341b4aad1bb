#include "plot/PaintMarkers.h"

#include <QImage>
#include <QPaintEngine>
#include <QPolygon>

#include "plot/SeriesShapes.h"

namespace vorlan {

namespace {

// So many markers are worth a picture of one.
constexpr std::size_t kCrowd = 50;

QRect outline(const Box& box) {
    return QRect(box.left, box.top, box.width() - 1, box.height() - 1);
}

void begin(QPainter& painter, const MarkerLook& look) {
    painter.setPen(look.pen);
    painter.setBrush(look.background);
}

void paintMarker(QPainter& painter, const MarkerLook& look, const Spot& spot) {
    if (look.kind == MarkerKind::Circle) {
        painter.drawEllipse(outline(markerBox(spot, look.size)));
    } else if (look.kind == MarkerKind::Square) {
        painter.drawRect(outline(markerBox(spot, look.size)));
    } else {
        if (look.kind == MarkerKind::Triangle) {
            const int h = look.size / 2;
            painter.setPen(Qt::NoPen);
            painter.drawPolygon(
                QPolygon({QPoint(spot.x - h, spot.y + h), QPoint(spot.x, spot.y - h), QPoint(spot.x + h, spot.y + h)}));
            painter.setPen(look.pen);
        }
        for (const Line& line : markerLines(look.kind, spot, look.size)) {
            painter.drawLine(line.from.x, line.from.y, line.to.x, line.to.y);
        }
    }
}

// Whether a marker has the same pixels wherever it stands: whole ones, none of them half covered.
bool areAlike(const QPainter& painter) {
    return painter.paintEngine() != nullptr && painter.paintEngine()->type() == QPaintEngine::Raster &&
           !painter.testRenderHint(QPainter::Antialiasing) &&
           painter.deviceTransform().type() <= QTransform::TxTranslate;
}

QImage picture(const MarkerLook& look, int reach) {
    QImage image(2 * reach + 1, 2 * reach + 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    begin(painter, look);
    paintMarker(painter, look, {reach, reach});
    return image;
}

}  // namespace

void paintMarkers(QPainter& painter, const std::vector<Spot>& spots, const MarkerLook& look) {
    begin(painter, look);
    const bool copies = spots.size() >= kCrowd && areAlike(painter);
    const int reach = look.size / 2 + look.pen.width() + 1;
    const QImage marker = copies ? picture(look, reach) : QImage();
    // Lines that are cut take other pixels on their way to the cut.
    const QRectF uncut = painter.hasClipping() ? painter.clipBoundingRect() : QRectF(painter.window());
    for (const Spot& spot : spots) {
        const QRect place(spot.x - reach, spot.y - reach, marker.width(), marker.height());
        if (copies && uncut.contains(place)) {
            painter.drawImage(place.topLeft(), marker);
        } else {
            paintMarker(painter, look, spot);
        }
    }
}

}  // namespace vorlan
