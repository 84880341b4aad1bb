#include "plot/PointNames.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "model/Index.h"
#include "plot/PolylineEnvelope.h"
#include "plot/SeriesShapes.h"

namespace vorlan {

namespace {

constexpr int kTextDistance = 6;
constexpr int kCell = 2;  // pixels

/// Which small cells of an area are taken: many names ask about many strokes.
class Occupancy {
  public:
    Occupancy(const Box& area, int cell)
        : area_(area),
          cell_(std::max(cell, 1)),
          columns_(std::max(area.width(), 0) / cell_ + 1),
          rows_(std::max(area.height(), 0) / cell_ + 1),
          taken_(asSize(columns_) * asSize(rows_)) {}

    void add(const Box& box) {
        visit(box, [this](std::size_t cell) {
            taken_[cell] = true;
            return false;
        });
    }
    void add(const Line& line) {
        const std::optional<Line> inside = clippedLine(line, area_);
        if (!inside) {
            return;
        }
        const int dx = inside->to.x - inside->from.x;
        const int dy = inside->to.y - inside->from.y;
        const int steps = std::max(std::max(std::abs(dx), std::abs(dy)) * 2 / cell_, 1);
        for (int i = 0; i <= steps; ++i) {
            const int x = inside->from.x + asInt(std::int64_t{dx} * i / steps);
            const int y = inside->from.y + asInt(std::int64_t{dy} * i / steps);
            add(Box{x, y, x + 1, y + 1});
        }
    }
    bool touches(const Box& box) const {
        return visit(box, [this](std::size_t cell) { return static_cast<bool>(taken_[cell]); });
    }

  private:
    // Calls action with the cells of the box until it returns true.
    template <class Action>
    bool visit(const Box& box, Action action) const {
        const Box inside = box.common(area_);
        if (inside.width() <= 0 || inside.height() <= 0) {
            return false;
        }
        for (int row = (inside.top - area_.top) / cell_; row <= (inside.bottom - 1 - area_.top) / cell_; ++row) {
            for (int column = (inside.left - area_.left) / cell_; column <= (inside.right - 1 - area_.left) / cell_;
                 ++column) {
                if (action(asSize(row) * asSize(columns_) + asSize(column))) {
                    return true;
                }
            }
        }
        return false;
    }

    Box area_;
    int cell_;
    int columns_;
    int rows_;
    std::vector<bool> taken_;
};

class Placer {
  public:
    Placer(const Diagram& diagram, const CScreenUtils& geometry, const TextMeasure& measure, double lengthScale,
           const Box& area)
        : diagram_(diagram),
          geometry_(geometry),
          measure_(measure),
          lengthScale_(lengthScale),
          area_(area),
          taken_(area, scaled(kCell)) {
        for (const PlotSeries& series : diagram.plot.series) {
            addSeries(series);
        }
    }

    std::vector<PointName> place() {
        for (const Diagram::PointLabel& label : diagram_.labels) {
            placeBeside(label);
        }
        return std::move(names_);
    }

  private:
    int scaled(int pixels) const { return static_cast<int>(std::lround(pixels * lengthScale_)); }

    void addSeries(const PlotSeries& series) {
        const SeriesAtrType& attributes = series.attributes;
        if (attributes.style == SeriesStyle::Arrows) {
            for (const Arrow& arrow : arrows(series, geometry_, lengthScale_)) {
                taken_.add(arrow.shaft);
                for (const Line& stroke : arrow.head) {
                    taken_.add(stroke);
                }
            }
            return;
        }
        if (attributes.style == SeriesStyle::Line || attributes.style == SeriesStyle::LineAndMarkers) {
            for (const std::vector<Spot>& part : polylineEnvelope(series, geometry_).parts) {
                for (std::size_t i = 1; i < part.size(); ++i) {
                    taken_.add(Line{part[i - 1], part[i]});
                }
            }
        }
        if (attributes.style == SeriesStyle::Markers || attributes.style == SeriesStyle::LineAndMarkers) {
            for (const Spot& spot : markerSpots(series, geometry_)) {
                taken_.add(markerBox(spot, scaled(attributes.markerSize)));
            }
        }
    }

    void placeBeside(const Diagram::PointLabel& label) {
        if (!geometry_.xPixels().places(label.x) || !geometry_.yPixels().places(label.y)) {
            return;
        }
        const Spot at{geometry_.xPixel(label.x), geometry_.yPixel(label.y)};
        if (!geometry_.contains(at.x, at.y)) {
            return;
        }
        for (const Box& box : sidesOf(at, label.text)) {
            if (area_.encloses(box) && !taken_.touches(box)) {
                taken_.add(box);
                names_.push_back({{label.text, box, diagram_.frame.labelFont}, label.x, label.y, at});
                return;
            }
        }
    }

    std::array<Box, 8> sidesOf(const Spot& at, const std::string& text) const {
        const FontDescription& font = diagram_.frame.labelFont;
        const int width = measure_.width(text, font);
        const int height = measure_.height(font);
        const int distance = scaled(kTextDistance);
        const int aside = height / 2 + distance;
        const Box atPoint{at.x, at.y - height / 2, at.x + width, at.y - height / 2 + height};
        const Box right = atPoint.moved(distance, 0);
        const Box left = atPoint.moved(-distance - width, 0);
        const Box middle = atPoint.moved(-width / 2, 0);
        return {right,
                left,
                middle.moved(0, -aside),
                middle.moved(0, aside),
                right.moved(0, -aside),
                right.moved(0, aside),
                left.moved(0, -aside),
                left.moved(0, aside)};
    }

    const Diagram& diagram_;
    const CScreenUtils& geometry_;
    const TextMeasure& measure_;
    double lengthScale_;
    Box area_;
    Occupancy taken_;
    std::vector<PointName> names_;
};

}  // namespace

std::vector<PlacedText> pointTexts(const Diagram& diagram, const CScreenUtils& geometry, const TextMeasure& measure,
                                   double lengthScale) {
    if (diagram.labels.empty()) {
        return {};
    }
    const Box plotArea{geometry.originX, geometry.originY - geometry.height, geometry.originX + geometry.width,
                       geometry.originY};
    std::vector<PlacedText> texts;
    for (PointName& name : Placer(diagram, geometry, measure, lengthScale, plotArea).place()) {
        texts.push_back(std::move(name.text));
    }
    return texts;
}

std::vector<PointName> freePointNames(const Diagram& diagram, const CScreenUtils& geometry, const TextMeasure& measure,
                                      double lengthScale) {
    if (diagram.labels.empty()) {
        return {};
    }
    const Box around{geometry.originX - geometry.width / 2, geometry.originY - geometry.height - geometry.height / 2,
                     geometry.originX + geometry.width + geometry.width / 2, geometry.originY + geometry.height / 2};
    return Placer(diagram, geometry, measure, lengthScale, around).place();
}

}  // namespace vorlan
