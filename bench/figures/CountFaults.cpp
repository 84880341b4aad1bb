// Counts what misleads in the diagrams of workspaces: every stage, pane and physical value of every probe, at four
// sizes.
//
//   count_faults FILE.avp...
//
// It looks at what is laid out and at every point of the series, not at the shapes by which the layout decides.
#include <QGuiApplication>
#include <QImage>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "io/WorkspaceFile.h"
#include "model/StageTable.h"
#include "plot/PolylineEnvelope.h"
#include "plot/QtText.h"
#include "plot/SPlotFrame.h"
#include "plot/STable.h"
#include "plot/SeriesShapes.h"
#include "stages/PaneDescription.h"

using namespace vorlan;

namespace {

enum Fault { LegendOverData, AlikeLabels, WrongLabels, TextOverText, LostSeries, CutSeries, CutText, NoRoom, kFaults };
constexpr std::array<const char*, kFaults> kNames = {"legend over data", "labels alike",        "labels off by > 2 %",
                                                     "text over text",   "series lost",         "curves cut unsaid",
                                                     "text cut",         "too small (no fault)"};
constexpr std::array<std::array<int, 2>, 4> kSizes = {{{300, 200}, {640, 480}, {950, 530}, {1920, 1080}}};
constexpr double kTolerance = 0.02;

struct Counts {
    int panes = 0;
    std::array<int, kFaults> found{};
};

class Inspector {
  public:
    Inspector(const Box& pane, const TextMeasure& measure, Counts& counts, bool tell, std::string place)
        : pane_(pane), measure_(measure), counts_(counts), tell_(tell), place_(std::move(place)) {}

    void operator()(const std::monostate&) const {}
    void operator()(const PaneMessage&) const {}
    void operator()(const TextPanel&) const {}

    void operator()(const TableContent& content) {
        ++counts_.panes;
        STable table(content);
        table.fitInto(pane_, measure_);
        const TableShapes shapes = table.shapes(pane_, measure_);
        if (!shapes.complete) {
            report(NoRoom, "table");
            return;
        }
        inspectTexts(shapes.texts);
    }

    void operator()(const Diagram& diagram) {
        ++counts_.panes;
        const FrameLayout layout = SPlotFrame(diagram, measure_).layout(pane_);
        if (layout.state == FrameLayout::State::TooSmall) {
            report(NoRoom, "diagram");
        }
        if (layout.state != FrameLayout::State::Drawn) {
            return;
        }
        std::vector<PlacedText> texts = layout.texts;
        for (const SLegend::Entry& entry : layout.legend.entries) {
            texts.push_back(entry.text);
            texts.insert(texts.end(), entry.more.begin(), entry.more.end());
        }
        inspectTexts(texts);
        inspectLabels(layout);
        for (const PlotSeries& series : diagram.plot.series) {
            inspectSeries(diagram, series, layout);
        }
    }

  private:
    void report(Fault fault, const std::string& what) {
        ++counts_.found[fault];
        if (tell_) {
            std::printf("  %s: %s: %s\n", place_.c_str(), kNames[fault], what.c_str());
        }
    }

    void inspectTexts(const std::vector<PlacedText>& texts) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (!pane_.encloses(texts[i].box) || texts[i].text.find("\u2026") != std::string::npos) {
                report(CutText, texts[i].text);
            }
            for (std::size_t k = 0; k < i; ++k) {
                // An exponent belongs to the ten beside it.
                if (texts[i].share == texts[k].share && texts[i].box.overlaps(texts[k].box)) {
                    report(TextOverText, texts[i].text + " and " + texts[k].text);
                }
            }
        }
    }

    void inspectLabels(const FrameLayout& layout) {
        for (const SAxis& axis : layout.axes) {
            const bool x = axis.horizontal();
            if (x ? layout.geometry.logX() : layout.geometry.logY()) {
                continue;
            }
            std::string before;
            for (const PlacedText& label : axis.linearLabels(measure_).texts) {
                const int centre = x ? (label.box.left + label.box.right) / 2 - axis.originX
                                     : axis.originY - (label.box.top + label.box.bottom) / 2;
                const double mark = std::round(static_cast<double>(centre) / axis.pixelsPerMark);
                const double value = axis.minimum + mark * axis.markStep;
                if (label.text == before) {
                    report(AlikeLabels, label.text);
                }
                if (std::fabs(std::strtod(label.text.c_str(), nullptr) - value) >
                    std::fabs(axis.markStep) * kTolerance * (1.0 + 1e-6)) {
                    report(WrongLabels, label.text);
                }
                before = label.text;
            }
        }
    }

    // The strokes and boxes of a series, by every one of its points.
    template <class OnLine, class OnBox>
    static void visit(const PlotSeries& series, const CScreenUtils& geometry, OnLine onLine, OnBox onBox) {
        const SeriesStyle style = series.attributes.style;
        if (style == SeriesStyle::Line || style == SeriesStyle::LineAndMarkers) {
            for (const std::vector<Spot>& part : fullPolyline(series, geometry).parts) {
                // A point without neighbours is a dot.
                for (std::size_t i = 0; i < part.size(); ++i) {
                    onLine(Line{part[i > 0 ? i - 1 : 0], part[i]});
                }
            }
        }
        if (style == SeriesStyle::Markers || style == SeriesStyle::LineAndMarkers) {
            for (const Spot& spot : markerSpots(series, geometry)) {
                onBox(markerBox(spot, series.attributes.markerSize));
            }
        }
        if (style == SeriesStyle::Bars) {
            for (const Box& box : barBoxes(series, geometry)) {
                onBox(box);
            }
        }
        if (style == SeriesStyle::Arrows) {
            for (const Arrow& arrow : arrows(series, geometry, 1.0)) {
                onLine(arrow.shaft);
            }
        }
    }

    static bool named(const FrameLayout& layout, const std::string& name) {
        for (const PlacedText& text : layout.texts) {
            const bool note =
                text.text.find("\u25b2") != std::string::npos || text.text.find("\u25bc") != std::string::npos ||
                text.text.find("\u25c4") != std::string::npos || text.text.find("\u25ba") != std::string::npos ||
                text.text.find("cannot be stored") != std::string::npos;
            if (note && text.text.find(name) != std::string::npos) {
                return true;
            }
        }
        return false;
    }

    void inspectSeries(const Diagram& diagram, const PlotSeries& series, const FrameLayout& layout) {
        const CScreenUtils& g = layout.geometry;
        const Box area{g.originX, g.originY - g.height, g.originX + g.width, g.originY};
        const Box& legend = layout.legend.box;
        const Box inside{legend.left, legend.top, legend.right - 1, legend.bottom - 1};
        bool over = false;
        bool shown = false;
        visit(
            series, g,
            [&](const Line& line) {
                const std::optional<Line> drawn = clippedLine(line, area);
                shown = shown || drawn;
                over = over || (drawn && !layout.legend.empty() && clippedLine(*drawn, inside));
            },
            [&](const Box& box) {
                const Box drawn = series.attributes.style == SeriesStyle::Bars ? box.common(area) : box;
                const bool visible = drawn.width() > 0 && drawn.height() > 0;
                shown = shown || visible;
                over = over || (visible && !layout.legend.empty() && drawn.overlaps(legend));
            });
        if (over) {
            report(LegendOverData, series.attributes.legendText);
        }
        const std::string& name = series.attributes.legendText;
        if (name.empty() || named(layout, name)) {
            return;
        }
        const bool onePoint = series.attributes.style == SeriesStyle::Line && series.y.size() < 2;
        if (!shown && !onePoint && !series.y.empty()) {
            report(LostSeries, name);
        } else if (leavesAutomaticLimits(diagram, series, g)) {
            report(CutSeries, name);
        }
    }

    static bool leavesAutomaticLimits(const Diagram& diagram, const PlotSeries& series, const CScreenUtils& g) {
        const AxisRule x = xAxisRule(diagram);
        const AxisRule y = yAxisRule(diagram.frame);
        for (std::size_t i = 0; i < series.y.size() && (series.x.values.empty() || i < series.x.values.size()); ++i) {
            if (!g.xPixels().places(series.x.at(i)) || !g.yPixels().places(series.y[i])) {
                continue;
            }
            const int px = g.xPixels().offset(series.x.at(i));
            const int py = g.yPixels().offset(series.y[i]);
            if ((x.upperFromData && px > g.width) || (x.lowerFromData && px < 0) ||
                (y.upperFromData && py > g.height) || (y.lowerFromData && py < 0)) {
                return true;
            }
        }
        return false;
    }

    Box pane_;
    const TextMeasure& measure_;
    Counts& counts_;
    bool tell_;
    std::string place_;
};

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QImage screen(8, 8, QImage::Format_RGB32);
    const QtTextMeasure measure(&screen, 1.0);
    const bool tell = std::getenv("VORLAN_TELL") != nullptr;
    std::map<std::string, Counts> rows;
    std::map<std::string, Counts> bySize;
    Counts total;
    for (int i = 1; i < argc; ++i) {
        const Workspace workspace = openWorkspace(argv[i]);
        for (int stage = 0; stage < kStageCount; ++stage) {
            for (int code = 0; code < kPaneCount * 4; ++code) {
                const auto pane = static_cast<Pane>(code / 4);
                const auto value = static_cast<PhysicalValue>(code / 2 % 2);
                const PaneContent content =
                    describePane({workspace, 0, 0, static_cast<Stage>(stage), pane, value, code % 2 == 1});
                for (const auto& [width, height] : kSizes) {
                    Counts counts;
                    const std::string place = std::filesystem::path(argv[i]).stem().string() + " " +
                                              stageRow(static_cast<Stage>(stage)).name + " pane " +
                                              std::to_string(code / 4) + (code / 2 % 2 == 1 ? " stresses " : " ") +
                                              std::to_string(width) + "x" + std::to_string(height);
                    std::visit(Inspector({0, 0, width, height}, measure, counts, tell, place), content);
                    const auto add = [&](Counts& into) {
                        into.panes += counts.panes;
                        for (int f = 0; f < kFaults; ++f) {
                            into.found[static_cast<std::size_t>(f)] += counts.found[static_cast<std::size_t>(f)];
                        }
                    };
                    add(total);
                    add(rows[std::string(stageRow(static_cast<Stage>(stage)).name) + " pane " +
                             std::to_string(code / 4)]);
                    add(bySize[std::to_string(width) + "x" + std::to_string(height)]);
                }
            }
        }
    }
    const auto print = [](const std::string& name, const Counts& counts) {
        std::printf("%-28s %6d", name.c_str(), counts.panes);
        for (const int n : counts.found) {
            std::printf(" %20d", n);
        }
        std::printf("\n");
    };
    std::printf("%-28s %6s", "", "panes");
    for (const char* name : kNames) {
        std::printf(" %20s", name);
    }
    std::printf("\n");
    for (const auto& [name, counts] : rows) {
        print(name, counts);
    }
    for (const auto& [name, counts] : bySize) {
        print(name, counts);
    }
    print("all", total);
    return 0;
}
