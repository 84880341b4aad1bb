#pragma once

#include <vector>

#include "plot/Diagram.h"
#include "plot/Shapes.h"
#include "plot/TextMeasure.h"

namespace vorlan {

/// A placed legend: its title and one entry per series that has a legend text.
struct SLegend {
    struct Entry {
        SeriesAtrType attributes;
        Spot sampleStart;  ///< left end of the sample, at the middle of the line
        int sampleLength = 0;
        PlacedText text;
    };
    std::vector<PlacedText> title;  ///< empty or one text
    std::vector<Entry> entries;
    Box box;
    bool inPlotArea = false;

    bool empty() const { return entries.empty(); }
    void move(int dx, int dy);
};

/// The legend of a diagram with its box at (0, 0), at most maxWidth pixels wide: one entry under another, or in rows
/// for the position below the diagram. Empty when no legend is wanted or no series has a text.
SLegend placeLegend(const Diagram& diagram, int maxWidth, const TextMeasure& measure, double lengthScale);

}  // namespace vorlan
