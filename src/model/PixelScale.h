#pragma once

#include <cmath>

namespace vorlan {

/// Farthest offset that is handed to a painter, pixels. Rasterisers lose precision or overflow beyond it.
inline constexpr double kFarthestPixel = 1e6;

/// Value to pixel offset along one axis:
/// linear trunc((v - minimum) / scale), scale in data units per pixel;
/// logarithmic trunc((log10 v - log10 minimum) * scale), scale in pixels per decade.
class PixelScale {
  public:
    PixelScale(double minimum, double scale, bool logarithmic)
        : start_(logarithmic ? std::log10(minimum) : minimum), scale_(scale), logarithmic_(logarithmic) {}

    /// Clamped to +-kFarthestPixel; values without a place on the axis lie at the far negative end.
    int offset(double value) const {
        const double pixels = logarithmic_ ? (std::log10(value) - start_) * scale_ : (value - start_) / scale_;
        if (!(pixels > -kFarthestPixel)) {
            return static_cast<int>(-kFarthestPixel);
        }
        return static_cast<int>(pixels < kFarthestPixel ? pixels : kFarthestPixel);
    }
    double value(int offset) const {
        return logarithmic_ ? std::pow(10.0, start_ + offset / scale_) : offset * scale_ + start_;
    }
    bool places(double value) const { return std::isfinite(value) && (!logarithmic_ || value > 0.0); }

  private:
    double start_;
    double scale_;
    bool logarithmic_;
};

}  // namespace vorlan
