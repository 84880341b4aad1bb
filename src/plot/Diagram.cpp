#include "plot/Diagram.h"

#include <algorithm>

namespace vorlan {

bool SPlot::hasPoints() const {
    return std::any_of(series.begin(), series.end(), [](const PlotSeries& s) { return !s.y.empty(); });
}

}  // namespace vorlan
