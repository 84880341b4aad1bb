#pragma once

#include <cstdint>
#include <string>

#include "model/FontDescription.h"
#include "model/GrowArray.h"

namespace vorlan {

/// Which axes of a diagram are logarithmic.
enum class ScaleType : std::int32_t { Linear = 0, Logarithmic = 1, LogXLinearY = 2, LinearXLogY = 3 };

/// What draws the grid.
enum class GridMode : std::int32_t { None = 0, Marks = 1, Ticks = 2, Both = 3 };

enum class LegendPosition : std::int32_t { Bottom = 0, RightTop = 1, NoLegend = 2 };

/// The stored attributes of one diagram: scales, limits, titles, fonts, ticks, grid, legend. Mode and code words hold
/// the stored integers; they are range-checked where they are used, and written back as they were read.
struct FrameAttributesType {
    double xMin = 0.0;
    double xMax = 1.0;
    double yMin = 0.0;
    double yMax = 1.0;
    /// Limit modes: 0 from the data, else the stored limit. xMinMode is the axis-limit switch of zooming: a time
    /// series with xMinMode 0 takes both ends of its time axis from the data.
    std::int32_t xMinMode = 0;
    std::int32_t xMaxMode = 0;
    std::int32_t yMinMode = 0;
    std::int32_t yMaxMode = 0;
    std::int32_t scaleType = 0;   ///< ScaleType
    std::int32_t frameStyle = 0;  ///< 0 ordinary, 1 full frame
    std::string xTitle;
    std::string yTitle;
    double xStep = 0.0;
    double yStep = 0.0;
    std::int32_t xStepMode = 0;  ///< 0 automatic, 1 the user's step
    std::int32_t yStepMode = 0;
    std::int32_t tickSize = 3;  ///< pixels, positive; the orientation decides the side
    std::int32_t markSize = 6;
    std::int32_t ticksPerMark = 1;
    std::int32_t tickOrientation = 1;  ///< 0 "X Up - Y Right" (into the plot), 1 "X Down - Y Left"
    std::int32_t xDigits = 1;
    std::int32_t yDigits = 1;
    std::int32_t labelOffset = 3;
    std::int32_t reserved = 0;
    std::string plotTitle;
    FontDescription plotTitleFont;
    FontDescription axisTitleFont;
    FontDescription labelFont;
    std::int32_t gridMode = 0;       ///< GridMode
    std::int32_t gridLineStyle = 2;  ///< 0 solid, 2 dotted
    std::int32_t gridPenWidth = 1;
    std::int32_t gridColour = 192 + 256 * 192 + 65536 * 192;  ///< red + 256 green + 65536 blue
    std::int32_t legendPosition = 1;                          ///< LegendPosition
    std::string legendTitle = "Legend:";
    FontDescription legendFont;

    void Serialize(Archive& archive);
    friend bool operator==(const FrameAttributesType&, const FrameAttributesType&) = default;
};

/// The frames of one group of diagrams, in pane order.
class SFrameAtrArray : public GrowArray<FrameAttributesType> {
  public:
    const char* ClassName() const override { return "SFrameAtrArray"; }
    void Serialize(Archive& archive) override;
};

}  // namespace vorlan
