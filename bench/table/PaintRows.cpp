// Painting the four panes of a record of a million samples.

#include <QImage>
#include <QPainter>
#include <array>
#include <optional>

#include "plot/PaintPane.h"
#include "plot/PaintSeries.h"
#include "stages/PaneDescription.h"
#include "table/Documents.h"
#include "table/Measure.h"
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
struct Picture {
    static constexpr QSize kScreen{1600, 900};

    PlotSeries series;
    CScreenUtils geometry;
    QImage full = paper(kScreen);
    QImage columns = paper(kScreen);

    explicit Picture(const PaneContent& velocities) : series(std::get<Diagram>(velocities).plot.series[0]) {
        geometry.originY = kScreen.height() - 1;
        geometry.width = kScreen.width();
        geometry.height = kScreen.height();
        geometry.xMax = series.x.at(series.y.size());
        geometry.xScale = geometry.xMax / geometry.width;
        geometry.yMin = 0.0;
        geometry.yMax = 40.0;
        geometry.yScale = geometry.yMax / geometry.height;
    }
    void paintEveryPoint() {
        QPainter painter(&full);
        painter.setPen(linePen(series.attributes.colour, 1, 0, 1.0));
        strokePolylines(painter, fullPolyline(series, geometry));
    }
    void paintColumns() {
        QPainter painter(&columns);
        paintSeries(painter, series, geometry, {});
    }
    Cell difference() const {
        long inked = 0;
        long differing = 0;
        for (int y = 0; y < kScreen.height(); ++y) {
            for (int x = 0; x < kScreen.width(); ++x) {
                inked += full.pixel(x, y) != 0xFFFFFFFFU ? 1 : 0;
                differing += full.pixel(x, y) != columns.pixel(x, y) ? 1 : 0;
            }
        }
        return {100.0 * static_cast<double>(differing) / static_cast<double>(inked),
                format("%ld of %ld inked pixels differ", differing, inked)};
    }
};

struct Panes {
    BreathPort port;
    CVorl_ADVDoc document{port};
    std::array<PaneContent, kPaneCount> contents;
    QImage pane = paper(kPane);
    std::optional<Picture> picture;

    Panes() {
        toolkit();
        openRecord(document, kSamples);
        describe();
        picture.emplace(contents[0]);
    }
    void describe() {
        for (int p = 0; p < kPaneCount; ++p) {
            contents[static_cast<std::size_t>(p)] = contentOf(document, static_cast<Pane>(p));
        }
    }
    void paint() {
        for (const PaneContent& content : contents) {
            QPainter painter(&pane);
            paintPane(painter, pane.rect(), content);
        }
    }
};

}  // namespace

void paintRows(Table& table) {
    table.section("Painting, four panes of 1,000,000 samples, nine lines");
    const Lazy<Panes> panes;
    measure("paint/describe", panes, [](Panes& p) { p.describe(); });
    table.milliseconds("describe the four panes after a change", "paint/describe");
    measure("paint/panes", panes, [](Panes& p) { p.paint(); });
    table.milliseconds("repaint the four panes, 960 x 500 pixels each", "paint/panes", atMost(1e3 / 60.0));

    const std::string points = "paint/line/points";
    const std::string columns = "paint/line/columns";
    measure(points, panes, [](Panes& p) { p.picture->paintEveryPoint(); })->Repetitions(3);
    measure(columns, panes, [](Panes& p) { p.picture->paintColumns(); });
    table.ratio("one line, 1600 x 900 pixels", points, columns, "x every point");
    table.row("its picture", {points, columns}, "% differ", atMost(0.01),
              [=](const Times&) { return panes().picture->difference(); });
}

}  // namespace bench
