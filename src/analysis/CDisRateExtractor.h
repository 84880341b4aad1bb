#pragma once

#include <array>

#include "analysis/DissipationRate.h"
#include "analysis/PixelImage.h"
#include "model/PixelScale.h"
#include "model/SObject.h"

namespace vorlan {

/// Reads dissipation rates off a drawn spectrum or structure function: pixels to data values and back, the two
/// formulas, and a movable line of the slope that the inertial range has, drawn into the pixels of the diagram.
///
/// Pixel rows are counted downward. On a linear axis the scale is in data units per pixel, on a logarithmic one in
/// pixels per decade.
class CDisRateExtractor : public SObject {
  public:
    /// Columns of the line: the anchor's and those right of it.
    static constexpr int kLineLength = 99;

    const char* ClassName() const override { return "CDisRateExtractor"; }
    /// Lives as long as the diagram is shown: nothing of it is stored.
    void Serialize(Archive&) override {}

    /// x0, y0: pixel of the lower left corner of the plot area, where the axes have their minimum values.
    /// scaleKind: 0 both axes linear, 1 both logarithmic, 2 logarithmic x, 3 logarithmic y.
    /// unitSelector: 0 spectra in Hz, 1 in rad/s. convectiveVelocity in cm/s.
    void Initialise(int x0, int y0, double xMinimum, double yMinimum, double xScale, double yScale, int scaleKind,
                    int unitSelector, double convectiveVelocity);

    double XValue(int px) const { return xPixels_.value(px - x0_); }
    double YValue(int py) const { return yPixels_.value(y0_ - py); }
    /// Truncated toward zero from the origin.
    int YPixel(double y) const { return y0_ - yPixels_.offset(y); }

    /// What stands at a pixel, and its dissipation rate, cm^2/s^3.
    DissipationReading ReadingAt(DissipationSource source, int px, int py) const;
    double DissipationRate(DissipationSource source, int px, int py) const;

    // The line anchored at pixel (px, py): for i = 0..98 the pixel in column px + i whose value is
    // y (x(px + i) / x(px))^p, with p = -1.66666 on spectra. On structure functions it is drawn with 0.66666666 and
    // saved and restored with 0.66666, so that a pixel of the line may stay behind.

    /// Keeps the colours under the line.
    void SaveBackground(DissipationSource source, const PixelImage& image, int px, int py);
    void DrawLine(DissipationSource source, PixelImage& image, int px, int py, PixelImage::Colour colour) const;
    /// Puts the colours kept last back.
    void RestoreBackground(DissipationSource source, PixelImage& image, int px, int py) const;

  private:
    /// Calls visit(i, column, row) for the pixels of a line with exponent p.
    template <class Visit>
    void forLine(int px, int py, double p, Visit visit) const;

    int x0_ = 0;
    int y0_ = 0;
    PixelScale xPixels_{0.0, 1.0, false};
    PixelScale yPixels_{0.0, 1.0, false};
    int unitSelector_ = 0;
    double convectiveVelocity_ = 0.0;
    std::array<PixelImage::Colour, 100> background_{};
};

}  // namespace vorlan
