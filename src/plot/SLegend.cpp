#include "plot/SLegend.h"

#include <algorithm>
#include <cmath>

namespace vorlan {

namespace {

constexpr int kSampleLength = 24;
constexpr int kSampleGap = 4;  // between sample and text, and around the legend
constexpr int kEntryGap = 12;  // between entries of one row
constexpr int kLineGap = 2;
constexpr std::size_t kMostLines = 3;  // of one entry

class Composer {
  public:
    Composer(const Diagram& diagram, LegendPosition position, int maxWidth, const TextMeasure& measure,
             double lengthScale)
        : font_(diagram.frame.legendFont),
          maxWidth_(maxWidth),
          measure_(measure),
          scale_(lengthScale),
          rows_(position == LegendPosition::Bottom),
          height_(measure.height(font_)) {
        x_ = y_ = scaled(kSampleGap);
    }

    SLegend compose(const Diagram& diagram) {
        addTitle(diagram.frame.legendTitle);
        for (const PlotSeries& series : diagram.plot.series) {
            if (!series.attributes.legendText.empty()) {
                addEntry(series);
            }
        }
        legend_.box.right = right_ + scaled(kSampleGap);
        legend_.box.bottom = y_ + height_ + scaled(kSampleGap);
        return legend_;
    }

  private:
    int scaled(int pixels) const { return static_cast<int>(std::lround(pixels * scale_)); }

    PlacedText placed(const std::string& text, int left) const {
        const int room = std::max(maxWidth_ - scaled(kSampleGap) - left, 0);
        const std::string shown = shortened(text, font_, room, measure_);
        return {shown, {left, y_, left + measure_.width(shown, font_), y_ + height_}, font_};
    }

    void nextLine() {
        x_ = scaled(kSampleGap);
        y_ += height_ + scaled(kLineGap);
        lineIsEmpty_ = true;
    }

    void advance(int right) {
        right_ = std::max(right_, right);
        x_ = right + scaled(kEntryGap);
        lineIsEmpty_ = false;
    }

    void addTitle(const std::string& title) {
        if (title.find_first_not_of(' ') == std::string::npos) {
            return;
        }
        legend_.title.push_back(placed(title, x_));
        advance(legend_.title.back().box.right);
    }

    void addEntry(const PlotSeries& series) {
        const SeriesAtrType& attributes = series.attributes;
        double sample = kSampleLength;
        if (attributes.style == SeriesStyle::Arrows && series.legendArrow > 0.0) {
            // A file can hold any length of the arrows, and any sign.
            const double wanted = series.legendArrow * attributes.arrowScale;
            sample = wanted > 0.0 ? std::min(wanted, std::max(maxWidth_ / (2.0 * scale_), 0.0)) : 0.0;
        }
        const int sampleLength = static_cast<int>(std::lround(sample * scale_));
        const int wanted = sampleLength + scaled(kSampleGap) + measure_.width(attributes.legendText, font_);
        if (!lineIsEmpty_ && (!rows_ || x_ + wanted + scaled(kSampleGap) > maxWidth_)) {
            nextLine();
        }
        SLegend::Entry entry;
        entry.attributes = attributes;
        entry.sampleStart = {x_, y_ + height_ / 2};
        entry.sampleLength = sampleLength;
        const int left = x_ + sampleLength + scaled(kSampleGap);
        const int room = std::max(maxWidth_ - scaled(kSampleGap) - left, 0);
        const std::vector<std::string> lines = wrapped(attributes.legendText, font_, room, measure_, kMostLines);
        entry.text = placed(lines.empty() ? std::string() : lines.front(), left);
        int right = entry.text.box.right;
        for (std::size_t i = 1; i < lines.size(); ++i) {
            y_ += height_;
            entry.more.push_back(placed(lines[i], left));
            right = std::max(right, entry.more.back().box.right);
        }
        advance(right);
        legend_.entries.push_back(entry);
    }

    const FontDescription& font_;
    int maxWidth_;
    const TextMeasure& measure_;
    double scale_;
    bool rows_;
    int height_;
    SLegend legend_;
    int x_ = 0;
    int y_ = 0;
    int right_ = 0;
    bool lineIsEmpty_ = true;
};

}  // namespace

void SLegend::move(int dx, int dy) {
    box = box.moved(dx, dy);
    for (PlacedText& text : title) {
        text.box = text.box.moved(dx, dy);
    }
    for (Entry& entry : entries) {
        entry.sampleStart = {entry.sampleStart.x + dx, entry.sampleStart.y + dy};
        entry.text.box = entry.text.box.moved(dx, dy);
        for (PlacedText& text : entry.more) {
            text.box = text.box.moved(dx, dy);
        }
    }
}

bool SLegend::complete() const {
    const auto whole = [](const Entry& entry) {
        std::string shown = entry.text.text;
        for (const PlacedText& text : entry.more) {
            shown += " " + text.text;
        }
        return shown == entry.attributes.legendText;
    };
    return !empty() && std::all_of(entries.begin(), entries.end(), whole);
}

bool hasLegend(const Diagram& diagram) {
    const std::int32_t position = diagram.frame.legendPosition;
    const bool wanted = position == static_cast<std::int32_t>(LegendPosition::Bottom) ||
                        position == static_cast<std::int32_t>(LegendPosition::RightTop);
    const auto hasText = [](const PlotSeries& series) { return !series.attributes.legendText.empty(); };
    return wanted && std::any_of(diagram.plot.series.begin(), diagram.plot.series.end(), hasText);
}

SLegend placeLegend(const Diagram& diagram, LegendPosition position, int maxWidth, const TextMeasure& measure,
                    double lengthScale) {
    if (!hasLegend(diagram)) {
        return {};
    }
    return Composer(diagram, position, maxWidth, measure, lengthScale).compose(diagram);
}

}  // namespace vorlan
