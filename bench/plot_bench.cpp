// Painting a million points: the envelope of the pixel columns against the polyline through every point.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <chrono>
#include <cstdio>
#include <random>

#include "plot/PaintPane.h"
#include "plot/PaintSeries.h"

using namespace vorlan;

namespace {

constexpr std::size_t kPoints = 1000000;
constexpr int kWidth = 1600;
constexpr int kHeight = 900;

PlotSeries randomSeries() {
    std::mt19937 random(7);
    std::normal_distribution<double> normal;
    PlotSeries series;
    series.x.step = 0.01;
    series.y.reserve(kPoints);
    double value = 0.0;
    for (std::size_t i = 0; i < kPoints; ++i) {
        value = 0.95 * value + normal(random);
        series.y.push_back(value);
    }
    return series;
}

CScreenUtils wholePicture() {
    CScreenUtils g;
    g.originY = kHeight - 1;
    g.width = kWidth;
    g.height = kHeight;
    g.xMax = kPoints * 0.01;
    g.xScale = g.xMax / kWidth;
    g.yMin = -16.0;
    g.yMax = 16.0;
    g.yScale = 32.0 / kHeight;
    return g;
}

template <class Paint>
double bestMilliseconds(int runs, Paint paint) {
    double best = 1e9;
    for (int i = 0; i < runs; ++i) {
        const auto start = std::chrono::steady_clock::now();
        paint();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        best = std::min(best, taken.count());
    }
    return best;
}

QImage whiteImage() {
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const PlotSeries series = randomSeries();
    const CScreenUtils geometry = wholePicture();
    QImage full = whiteImage();
    QImage thin = whiteImage();
    const auto paintLines = [](QImage& image, const Polylines& lines) {
        QPainter painter(&image);
        painter.setPen(linePen(0, 1, 0, 1.0));
        strokePolylines(painter, lines);
    };
    const double fullTime = bestMilliseconds(5, [&] { paintLines(full, fullPolyline(series, geometry)); });
    const double thinTime = bestMilliseconds(20, [&] { paintLines(thin, polylineEnvelope(series, geometry)); });
    const double mapTime = bestMilliseconds(20, [&] { polylineEnvelope(series, geometry); });

    Diagram diagram;
    diagram.plot.series.push_back(series);
    const PaneContent content = diagram;
    QImage pane = whiteImage();
    const double paneTime = bestMilliseconds(20, [&] {
        QPainter painter(&pane);
        paintPane(painter, pane.rect(), content);
    });

    long inked = 0;
    long differing = 0;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            inked += full.pixel(x, y) != 0xFFFFFFFFU ? 1 : 0;
            differing += full.pixel(x, y) != thin.pixel(x, y) ? 1 : 0;
        }
    }
    std::printf("%zu points, %d x %d pixels\n", kPoints, kWidth, kHeight);
    std::printf("every point       %8.2f ms\n", fullTime);
    std::printf("column envelope   %8.2f ms, of which finding it %.2f ms\n", thinTime, mapTime);
    std::printf("ratio             %8.1f\n", fullTime / thinTime);
    std::printf("differing pixels  %8ld of %ld inked\n", differing, inked);
    std::printf("whole pane        %8.2f ms\n", paneTime);
    return 0;
}
