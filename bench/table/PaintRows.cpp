// Painting the four panes of a record of a million samples.

#include <QImage>
#include <QPainter>
#include <array>

#include "plot/PaintPane.h"
#include "plot/PaintSeries.h"
#include "stages/PaneDescription.h"
#include "table/Documents.h"
#include "table/Rows.h"
#include "table/Toolkit.h"

namespace bench {

namespace {

using namespace vorlan;

constexpr std::size_t kSamples = 1'000'000;
constexpr QSize kPane(960, 500);

QImage paper(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

PaneContent contentOf(const CVorl_ADVDoc& document, Pane pane) {
    return describePane({document.GetWorkspace(), document.ActiveFile(), document.ActiveProbe(), Stage::PreProcessing,
                         pane, PhysicalValue::Velocities, false});
}

/// One velocity over a whole screen: every point against what the panes paint.
void picture(Table& table, const PlotSeries& series) {
    constexpr QSize kScreen(1600, 900);
    CScreenUtils geometry;
    geometry.originY = kScreen.height() - 1;
    geometry.width = kScreen.width();
    geometry.height = kScreen.height();
    geometry.xMax = series.x.at(series.y.size());
    geometry.xScale = geometry.xMax / geometry.width;
    geometry.yMin = 0.0;
    geometry.yMax = 40.0;
    geometry.yScale = geometry.yMax / geometry.height;
    QImage full = paper(kScreen);
    QImage rows = paper(kScreen);
    const auto times = rounds(5, {[&] {
                                      QPainter painter(&full);
                                      painter.setPen(linePen(series.attributes.colour, 1, 0, 1.0));
                                      strokePolylines(painter, fullPolyline(series, geometry));
                                  },
                                  [&] {
                                      QPainter painter(&rows);
                                      paintSeries(painter, series, geometry, 1.0);
                                  }});
    long inked = 0;
    long differing = 0;
    for (int y = 0; y < kScreen.height(); ++y) {
        for (int x = 0; x < kScreen.width(); ++x) {
            inked += full.pixel(x, y) != 0xFFFFFFFFU ? 1 : 0;
            differing += full.pixel(x, y) != rows.pixel(x, y) ? 1 : 0;
        }
    }
    char note[80];
    std::snprintf(note, sizeof note, "%.4g ms against %.4g ms", 1e3 * median(times[1]), 1e3 * median(times[0]));
    table.row("one line, 1600 x 900 pixels", medianRatio(times[0], times[1]), "x every point", Goal::None, 0.0, note);
    std::snprintf(note, sizeof note, "%ld of %ld inked pixels differ", differing, inked);
    table.row("its picture", 100.0 * static_cast<double>(differing) / static_cast<double>(inked), "% differ",
              Goal::AtMost, 0.01, note);
}

}  // namespace

void paintRows(Table& table) {
    table.section("Painting, four panes of 1,000,000 samples, nine lines");
    startToolkit();
    GapPort port;
    CVorl_ADVDoc document(port);
    openRecord(document, kSamples);
    std::array<PaneContent, kPaneCount> contents;
    const auto described = rounds(7, {[&] {
                                      for (int p = 0; p < kPaneCount; ++p) {
                                          contents[static_cast<std::size_t>(p)] =
                                              contentOf(document, static_cast<Pane>(p));
                                      }
                                  }});
    table.row("describe the four panes after a change", 1e3 * median(described[0]), "ms");
    QImage pane = paper(kPane);
    const auto painted = rounds(21, {[&] {
                                    for (const PaneContent& content : contents) {
                                        QPainter painter(&pane);
                                        paintPane(painter, pane.rect(), content);
                                    }
                                }});
    table.row("repaint the four panes, 960 x 500 pixels each", 1e3 * median(painted[0]), "ms", Goal::AtMost,
              1e3 / 60.0);
    picture(table, std::get<Diagram>(contents[0]).plot.series[0]);
}

}  // namespace bench
