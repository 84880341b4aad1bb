#include <QBuffer>
#include <QImage>
#include <QSvgRenderer>
#include <QTest>
#include <array>
#include <cmath>
#include <random>

#include "plot/PaintMarkers.h"
#include "plot/PaintPane.h"
#include "plot/PaintSeries.h"
#include "plot/QtText.h"
#include "plot/RenderFile.h"

using namespace vorlan;

namespace {

constexpr QRgb kWhite = 0xFFFFFFFF;

struct Painted {
    QImage image;
    std::optional<CScreenUtils> geometry;
};

Painted paint(const PaneContent& content, QSize size = QSize(500, 330)) {
    Painted result;
    result.image = QImage(size, QImage::Format_RGB32);
    result.image.fill(Qt::darkGray);
    QPainter painter(&result.image);
    result.geometry = paintPane(painter, QRect(QPoint(0, 0), size), content);
    return result;
}

qint64 inked(const QImage& image) {
    qint64 count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) != kWhite ? 1 : 0;
        }
    }
    return count;
}

qint64 differing(const QImage& a, const QImage& b) {
    qint64 count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

PlotSeries noise(std::size_t n, double step, unsigned seed) {
    std::mt19937 random(seed);
    std::normal_distribution<double> normal;
    PlotSeries series;
    series.x.step = step;
    double value = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        value = 0.98 * value + normal(random);
        series.y.push_back(value);
    }
    return series;
}

Diagram diagramOf(PlotSeries series) {
    Diagram diagram;
    diagram.frame.plotTitle = "Sampled Velocities";
    diagram.plot.series.push_back(std::move(series));
    return diagram;
}

template <class Draw>
QImage drawnIn(const QRect& area, Draw draw) {
    QImage image(1600, 900, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setClipRect(area);
    draw(painter);
    return image;
}

CScreenUtils wideGeometry(double duration) {
    CScreenUtils g;
    g.originX = 50;
    g.originY = 850;
    g.width = 1500;
    g.height = 800;
    g.xMax = duration;
    g.xScale = duration / g.width;
    g.yMin = -25.0;
    g.yMax = 25.0;
    g.yScale = 50.0 / g.height;
    return g;
}

}  // namespace

class PaintingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aCrowdOfMarkersIsPaintedAsEachAlone() {
        std::mt19937 random(5);
        std::vector<Spot> spots(2000);
        for (Spot& spot : spots) {
            spot = {static_cast<int>(random() % 120) - 10, static_cast<int>(random() % 120) - 10};
        }
        for (const MarkerKind kind : {MarkerKind::Circle, MarkerKind::Square, MarkerKind::Plus, MarkerKind::Triangle}) {
            for (const int size : {2, 3, 5, 8, 31}) {
                const MarkerLook look{kind, size, linePen(0xA03214, 1, 0, 1.0), Qt::yellow};
                const QRect area(3, 4, 95, 88);
                const QImage crowd = drawnIn(area, [&](QPainter& p) { paintMarkers(p, spots, look); });
                const QImage each = drawnIn(area, [&](QPainter& p) {
                    for (const Spot& spot : spots) {
                        paintMarkers(p, {spot}, look);
                    }
                });
                QCOMPARE(differing(crowd, each), 0);
                QVERIFY(inked(crowd) > 0);
            }
        }
    }

    void denseLinesFillThePixelsOfTheFullLine() {
        CScreenUtils g = wideGeometry(600.0);
        PlotSeries smooth = noise(60000, 0.01, 1);
        PlotSeries rough = noise(60000, 0.01, 2);
        for (std::size_t i = 0; i < rough.y.size(); i += 2) {
            rough.y[i] *= -3.0;
        }
        PlotSeries broken = noise(60000, 0.01, 3);
        for (std::size_t i = 0; i < broken.y.size(); i += 9000) {
            std::fill_n(broken.y.begin() + static_cast<std::ptrdiff_t>(i), 4000, std::nan(""));
        }
        PlotSeries slanted = noise(60000, 0.01, 4);
        for (std::size_t i = 0; i < slanted.y.size(); ++i) {
            slanted.y[i] = 1e-3 * static_cast<double>(i) - 30.0;
        }
        PlotSeries sparse = noise(60000, 0.01, 5);
        sparse.x.values.resize(sparse.y.size());
        for (std::size_t i = 0; i < sparse.y.size(); ++i) {
            sparse.x.values[i] = 7.0 * static_cast<double>(i / 700);
        }
        for (const PlotSeries& series : {smooth, rough, broken, slanted, sparse}) {
            const QRect area(g.originX, g.originY - g.height, g.width + 1, g.height + 1);
            const QImage full = drawnIn(area, [&](QPainter& painter) {
                painter.setPen(linePen(255, 1, 0, 1.0));
                strokePolylines(painter, fullPolyline(series, g));
            });
            PlotSeries red = series;
            red.attributes.colour = 255;
            const QImage filled = drawnIn(area, [&](QPainter& painter) { paintSeries(painter, red, g, {}); });
            QVERIFY(polylineEnvelope(series, g).dense);
            const qint64 differences = differing(full, filled);
            QVERIFY2(differences * 10000 <= inked(full), qPrintable(QString::number(differences)));
        }
    }

    void diagramsGiveTheirGeometry() {
        const Painted painted = paint(diagramOf(noise(1000, 0.1, 1)));
        QVERIFY(painted.geometry.has_value());
        const CScreenUtils& g = *painted.geometry;
        QCOMPARE(painted.image.pixel(g.originX, g.originY), QRgb(0xFF000000));
        QCOMPARE(painted.image.pixel(g.originX + g.width, g.originY), QRgb(0xFF000000));
        QCOMPARE(painted.image.pixel(0, 0), kWhite);
        QCOMPARE(painted.image.pixel(499, 329), kWhite);
    }

    void seriesStayInsideThePlotArea() {
        for (const SeriesStyle style : {SeriesStyle::Line, SeriesStyle::Bars}) {
            Diagram diagram = diagramOf(noise(300, 0.1, 1));
            FrameAttributesType& frame = diagram.frame;
            frame.yMinMode = frame.yMaxMode = frame.xMinMode = frame.xMaxMode = 1;
            frame.yMin = -1.0;
            frame.yMax = 1.0;
            frame.xMin = 5.0;
            frame.xMax = 10.0;
            PlotSeries& series = diagram.plot.series[0];
            series.attributes.style = style;
            series.attributes.colour = 255;
            const Painted painted = paint(diagram);
            const CScreenUtils g = painted.geometry.value();
            bool inside = false;
            for (int y = 0; y < painted.image.height(); ++y) {
                for (int x = 0; x < painted.image.width(); ++x) {
                    if (painted.image.pixel(x, y) == QRgb(0xFFFF0000)) {
                        inside = true;
                        QVERIFY(g.contains(x, y));
                    }
                }
            }
            QVERIFY(inside);
        }
    }

    void messagesReplaceDiagrams() {
        // A message is painted as a pane message of the same text is.
        const auto sameAs = [](const Painted& painted, const char* text) {
            return painted.image == paint(PaneMessage{text}, painted.image.size()).image && !painted.geometry;
        };
        QVERIFY(sameAs(paint(diagramOf(PlotSeries())), "No data to plot ! Reset series to continue."));
        QVERIFY(sameAs(paint(diagramOf(noise(10, 1.0, 1)), QSize(110, 70)), "Increase Size to View Data"));
        QVERIFY(inked(paint(PaneMessage{"text"}).image) > 10);
        QCOMPARE(inked(paint(std::monostate()).image), 0);
    }

    void filesHoldThePanes() {
        const std::array<PaneContent, 4> panes{diagramOf(noise(500, 0.1, 1)), PaneMessage{"left bottom"},
                                               std::monostate(), diagramOf(noise(500, 0.1, 2))};
        const QByteArray png = renderPanes(panes, QSize(800, 600), RenderFormat::Png);
        const QImage image = QImage::fromData(png, "PNG");
        QCOMPARE(image.size(), QSize(800, 600));
        QVERIFY(inked(image.copy(0, 0, 397, 297)) > 500);
        QVERIFY(inked(image.copy(0, 303, 397, 297)) > 50);
        QCOMPARE(inked(image.copy(403, 0, 397, 297)), 0);
        QVERIFY(inked(image.copy(403, 303, 397, 297)) > 500);

        QSvgRenderer svg(renderPanes(panes, QSize(800, 600), RenderFormat::Svg));
        QVERIFY(svg.isValid());
        QCOMPARE(svg.viewBox().width() * 3, svg.viewBox().height() * 4);
        QImage fromSvg(800, 600, QImage::Format_RGB32);
        fromSvg.fill(Qt::white);
        QPainter painter(&fromSvg);
        svg.render(&painter);
        QVERIFY(inked(fromSvg) > 1000);
        QVERIFY(renderPanes(panes, QSize(800, 600), RenderFormat::Pdf).startsWith("%PDF-"));
        QVERIFY(renderPanes({}, QSize(800, 600), RenderFormat::Png).isEmpty());
        // Twice the dots per inch in twice the pixels: the same picture, drawn finer.
        const QByteArray printed = renderPanes(std::span(panes).first(1), QSize(1600, 1200), RenderFormat::Png, 192.0);
        const QImage fine = QImage::fromData(printed, "PNG");
        const QImage coarse =
            QImage::fromData(renderPanes(std::span(panes).first(1), QSize(800, 600), RenderFormat::Png), "PNG");
        QVERIFY(std::abs(fine.dotsPerMeterX() - 7559) <= 1);
        const double share = static_cast<double>(inked(fine)) / static_cast<double>(inked(coarse));
        QVERIFY2(share > 3.2 && share < 5.0, qPrintable(QString::number(share)));
        QVERIFY(renderPanes(panes, QSize(0, 600), RenderFormat::Pdf).isEmpty());
        QVERIFY(!renderPanes(panes, QSize(1, 1), RenderFormat::Png).isEmpty());
    }
};

QTEST_MAIN(PaintingTest)
#include "PaintingTest.moc"
