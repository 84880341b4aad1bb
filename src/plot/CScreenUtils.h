#pragma once

#include <optional>

#include "model/FrameAttributes.h"
#include "model/PixelScale.h"

namespace vorlan {

/// Limits that would show series which automatic limits leave out; empty where nothing is left out.
struct WiderLimits {
    std::optional<double> xMin;
    std::optional<double> xMax;
    std::optional<double> yMin;
    std::optional<double> yMax;
};

/// Geometry of a drawn diagram: pixel to value and back. Scale factors are data units per pixel on a linear axis and
/// pixels per decade on a logarithmic one. The origin is the lower left corner of the plot area; y grows downward.
class CScreenUtils {
  public:
    int originX = 0;
    int originY = 0;
    int width = 0;  ///< of the plot area, pixels
    int height = 0;
    double xMin = 0.0;
    double xMax = 1.0;
    double yMin = 0.0;
    double yMax = 1.0;
    double xStep = 1.0;  ///< between marks of a linear axis, data units
    double yStep = 1.0;
    double xScale = 1.0;
    double yScale = 1.0;
    ScaleType scaleType = ScaleType::Linear;
    WiderLimits wider = {};

    bool logX() const { return scaleType == ScaleType::Logarithmic || scaleType == ScaleType::LogXLinearY; }
    bool logY() const { return scaleType == ScaleType::Logarithmic || scaleType == ScaleType::LinearXLogY; }
    PixelScale xPixels() const { return {xMin, xScale, logX()}; }
    PixelScale yPixels() const { return {yMin, yScale, logY()}; }
    double xValue(int px) const { return xPixels().value(px - originX); }
    double yValue(int py) const { return yPixels().value(originY - py); }
    /// Screen pixels, truncated toward zero from the origin and clamped to what a painter bears.
    int xPixel(double x) const { return originX + xPixels().offset(x); }
    int yPixel(double y) const { return originY - yPixels().offset(y); }
    bool contains(int px, int py) const;
    bool overXRange(int px) const { return px >= originX && px <= originX + width; }
};

}  // namespace vorlan
