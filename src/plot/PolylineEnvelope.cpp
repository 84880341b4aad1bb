#include "plot/PolylineEnvelope.h"

#include <algorithm>
#include <cmath>

#include "plot/DataExtent.h"

namespace vorlan {

namespace {

// Points per column above which a line counts as dense.
constexpr std::size_t kDensePoints = 16;

// First, lowest, highest and last value of consecutive points.
struct Span {
    double first;
    double lowest;
    double highest;
    double last;

    explicit Span(double y) : first(y), lowest(y), highest(y), last(y) {}
    void add(double y) {
        lowest = std::min(lowest, y);
        highest = std::max(highest, y);
        last = y;
    }
};

// Extremes and ends of y[from, to). Empty when a value has no place on the axis.
std::optional<Span> spanOf(const PlotSeries& series, std::size_t from, std::size_t to, const PixelScale& pixels) {
    const std::vector<double>& y = series.y;
    const std::optional<DataInterval> extremes = series.blocks.cover(y.size())
                                                     ? series.blocks.extremesBetween(y, from, to)
                                                     : finiteExtremes(std::span(y).subspan(from, to - from));
    if (!extremes || !pixels.places(extremes->lowest)) {
        return std::nullopt;
    }
    Span span(y[from]);
    span.lowest = extremes->lowest;
    span.highest = extremes->highest;
    span.last = y[to - 1];
    return span;
}

// Collects the columns of one series.
class Envelope {
  public:
    explicit Envelope(const CScreenUtils& geometry)
        : originX_(geometry.originX), originY_(geometry.originY), x_(geometry.xPixels()), y_(geometry.yPixels()) {}

    const PixelScale& xPixels() const { return x_; }
    const PixelScale& yPixels() const { return y_; }

    void addPoint(double x, double y) { x_.places(x) && y_.places(y) ? addPlaced(x_.offset(x), y) : closeLine(); }
    /// A point whose column is known.
    void addPointOf(int offset, double y) { y_.places(y) ? addPlaced(offset, y) : closeLine(); }
    void addPlaced(int offset, double y) {
        if (span_ && offset == offset_) {
            span_->add(y);
        } else {
            addColumn(offset, Span(y));
        }
    }
    void addColumn(int offset, const Span& span) {
        closeColumn();
        offset_ = offset;
        span_ = span;
    }
    bool isIn(int offset) const { return span_ && offset_ == offset; }

    Polylines finish(std::size_t points) {
        closeLine();
        lines_.dense = points > kDensePoints * std::max<std::size_t>(columns_, 1);
        return std::move(lines_);
    }

  private:
    void append(double y) {
        const Spot spot{originX_ + offset_, originY_ - y_.offset(y)};
        if (line_.empty() || line_.back() != spot) {
            line_.push_back(spot);
        }
    }
    void closeColumn() {
        if (!span_) {
            return;
        }
        append(span_->first);
        if (span_->lowest != span_->highest) {
            append(span_->lowest);
            append(span_->highest);
            append(span_->last);
        }
        ++columns_;
        span_.reset();
    }
    void closeLine() {
        closeColumn();
        if (!line_.empty()) {
            lines_.parts.push_back(std::move(line_));
            line_.clear();
        }
    }

    int originX_;
    int originY_;
    PixelScale x_;
    PixelScale y_;
    Polylines lines_;
    std::vector<Spot> line_;
    std::optional<Span> span_;
    int offset_ = 0;
    std::size_t columns_ = 0;
};

// One past the last point of the column of point i. Evenly spaced positions do not turn back, so the end can be
// guessed from the column before and corrected.
std::size_t columnEnd(const SeriesX& x, const PixelScale& pixels, std::size_t i, std::size_t guess, std::size_t n) {
    const int offset = pixels.offset(x.at(i));
    std::size_t end = std::clamp(guess, i + 1, n);
    while (end > i + 1 && pixels.offset(x.at(end - 1)) != offset) {
        --end;
    }
    while (end < n && pixels.offset(x.at(end)) == offset) {
        ++end;
    }
    return end;
}

// The points from, .., to - 1.
void addEvenlySpaced(const PlotSeries& series, std::size_t from, std::size_t to, Envelope& envelope) {
    const PixelScale& pixels = envelope.xPixels();
    const std::size_t n = to;
    std::size_t width = 1;
    for (std::size_t i = from; i < n;) {
        const std::size_t end = columnEnd(series.x, pixels, i, i + width, n);
        const int offset = pixels.offset(series.x.at(i));
        const bool placed = pixels.places(series.x.at(i)) && pixels.places(series.x.at(end - 1));
        const std::optional<Span> span = placed ? spanOf(series, i, end, envelope.yPixels()) : std::optional<Span>();
        if (span && !envelope.isIn(offset)) {
            envelope.addColumn(offset, *span);
        } else if (placed) {
            for (std::size_t k = i; k < end; ++k) {
                envelope.addPointOf(offset, series.y[k]);
            }
        } else {
            for (std::size_t k = i; k < end; ++k) {
                envelope.addPoint(series.x.at(k), series.y[k]);
            }
        }
        width = end - i;
        i = end;
    }
}

// The first of n evenly spaced points that lies in pixel column offset or right of it. Points that have no place on the
// axis lie at its far left.
std::size_t firstFrom(const SeriesX& x, const PixelScale& pixels, int offset, std::size_t n) {
    std::size_t low = 0;
    while (low < n) {
        const std::size_t middle = low + (n - low) / 2;
        if (pixels.offset(x.at(middle)) < offset) {
            low = middle + 1;
        } else {
            n = middle;
        }
    }
    return low;
}

}  // namespace

Polylines polylineEnvelope(const PlotSeries& series, const CScreenUtils& geometry) {
    Envelope envelope(geometry);
    const std::size_t n = pointCount(series);
    if (series.x.values.empty()) {
        addEvenlySpaced(series, 0, n, envelope);
    } else {
        for (std::size_t i = 0; i < n; ++i) {
            envelope.addPoint(series.x.values[i], series.y[i]);
        }
    }
    return envelope.finish(n);
}

Polylines polylineEnvelope(const PlotSeries& series, const CScreenUtils& geometry, int left, int right) {
    const std::size_t n = pointCount(series);
    Envelope envelope(geometry);
    const PixelScale& pixels = envelope.xPixels();
    if (!series.x.values.empty() || n < 2 || pixels.offset(series.x.at(0)) > pixels.offset(series.x.at(n - 1))) {
        return polylineEnvelope(series, geometry);
    }
    // One point more on either side, for the strokes that lead there.
    const std::size_t from = firstFrom(series.x, pixels, left - geometry.originX, n);
    const std::size_t to = firstFrom(series.x, pixels, right + 1 - geometry.originX, n);
    addEvenlySpaced(series, from - std::min<std::size_t>(from, 1), std::min(to + 1, n), envelope);
    return envelope.finish(to - from);
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
