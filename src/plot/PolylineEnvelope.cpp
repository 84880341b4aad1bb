#include "plot/PolylineEnvelope.h"

#include <algorithm>
#include <cmath>

#include "plot/DataExtent.h"

namespace vorlan {

namespace {

// Points per column above which a line counts as dense.
constexpr std::size_t kDensePoints = 16;

class Column {
  public:
    void start(int x, double y) {
        x_ = x;
        first_ = lowest_ = highest_ = last_ = y;
    }
    int x() const { return x_; }
    void add(double y) {
        lowest_ = std::min(lowest_, y);
        highest_ = std::max(highest_, y);
        last_ = y;
    }
    void appendTo(std::vector<Spot>& line, int originY, const PixelScale& pixels) const {
        const auto append = [&](double y) {
            const Spot spot{x_, originY - pixels.offset(y)};
            if (line.empty() || line.back() != spot) {
                line.push_back(spot);
            }
        };
        append(first_);
        if (lowest_ != highest_) {
            append(lowest_);
            append(highest_);
            append(last_);
        }
    }

  private:
    int x_ = 0;
    double first_ = 0.0;
    double lowest_ = 0.0;
    double highest_ = 0.0;
    double last_ = 0.0;
};

}  // namespace

Polylines polylineEnvelope(const PlotSeries& series, const CScreenUtils& geometry) {
    Polylines lines;
    const PixelScale xPixels = geometry.xPixels();
    const PixelScale yPixels = geometry.yPixels();
    const std::size_t n = pointCount(series);
    Column column;
    std::vector<Spot> line;
    std::size_t columns = 0;
    bool open = false;
    const auto closeColumn = [&] {
        if (open) {
            column.appendTo(line, geometry.originY, yPixels);
            ++columns;
        }
        open = false;
    };
    const auto closeLine = [&] {
        closeColumn();
        if (!line.empty()) {
            lines.parts.push_back(std::move(line));
            line.clear();
        }
    };
    for (std::size_t i = 0; i < n; ++i) {
        const double x = series.x.at(i);
        const double y = series.y[i];
        if (!yPixels.places(y) || !xPixels.places(x)) {
            closeLine();
            continue;
        }
        const int px = geometry.originX + xPixels.offset(x);
        if (open && px == column.x()) {
            column.add(y);
            continue;
        }
        closeColumn();
        column.start(px, y);
        open = true;
    }
    closeLine();
    lines.dense = n > kDensePoints * std::max<std::size_t>(columns, 1);
    return lines;
}

Polylines fullPolyline(const PlotSeries& series, const CScreenUtils& geometry) {
    Polylines lines;
    const PixelScale xPixels = geometry.xPixels();
    const PixelScale yPixels = geometry.yPixels();
    bool open = false;
    for (std::size_t i = 0; i < pointCount(series); ++i) {
        const double x = series.x.at(i);
        const double y = series.y[i];
        if (!yPixels.places(y) || !xPixels.places(x)) {
            open = false;
            continue;
        }
        if (!open) {
            lines.parts.emplace_back();
            open = true;
        }
        lines.parts.back().push_back({geometry.originX + xPixels.offset(x), geometry.originY - yPixels.offset(y)});
    }
    return lines;
}

std::optional<Line> clippedLine(const Line& line, const Box& area) {
    const double dx = line.to.x - line.from.x;
    const double dy = line.to.y - line.from.y;
    double enter = 0.0;
    double leave = 1.0;
    // One side of the area after another: inside is distance <= room along the line.
    const auto cut = [&](double distance, double room) {
        if (distance == 0.0) {
            return room >= 0.0;
        }
        const double at = room / distance;
        (distance < 0.0 ? enter : leave) = distance < 0.0 ? std::max(enter, at) : std::min(leave, at);
        return enter <= leave;
    };
    if (!cut(-dx, line.from.x - area.left) || !cut(dx, area.right - line.from.x) || !cut(-dy, line.from.y - area.top) ||
        !cut(dy, area.bottom - line.from.y)) {
        return std::nullopt;
    }
    const auto at = [&](double share) {
        return Spot{static_cast<int>(std::lround(line.from.x + share * dx)),
                    static_cast<int>(std::lround(line.from.y + share * dy))};
    };
    return Line{at(enter), at(leave)};
}

Polylines clipped(const Polylines& lines, const Box& area) {
    Polylines result;
    result.dense = lines.dense;
    for (const std::vector<Spot>& part : lines.parts) {
        bool joined = false;
        for (std::size_t i = 1; i < part.size(); ++i) {
            const std::optional<Line> line = clippedLine({part[i - 1], part[i]}, area);
            if (!line) {
                joined = false;
                continue;
            }
            if (!joined || result.parts.back().back() != line->from) {
                result.parts.push_back({line->from});
            }
            result.parts.back().push_back(line->to);
            joined = true;
        }
    }
    return result;
}

}  // namespace vorlan
