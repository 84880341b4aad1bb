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
        std::vector<PlacedText> more;  ///< further lines of a long text
    };
    std::vector<PlacedText> title;  ///< empty or one text
    std::vector<Entry> entries;     ///< in the order of the series that have a text
    Box box;
    bool inPlotArea = false;

    bool empty() const { return entries.empty(); }
    /// There, with every text whole.
    bool complete() const;
    void move(int dx, int dy);
};

/// Whether the diagram has a legend: a position that is one, and a series with a text.
bool hasLegend(const Diagram& diagram);

/// The legend of a diagram with its box at (0, 0), at most maxWidth pixels wide: one entry under another, or in rows
/// for the position below the diagram. Empty when the diagram has none.
SLegend placeLegend(const Diagram& diagram, LegendPosition position, int maxWidth, const TextMeasure& measure,
                    double lengthScale);

}  // namespace vorlan
