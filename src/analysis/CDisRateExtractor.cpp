#include "analysis/CDisRateExtractor.h"

#include <cmath>

#include "model/FrameAttributes.h"
#include "model/Index.h"

namespace vorlan {

namespace {

struct LineExponents {
    double drawn;
    double saved;
};

LineExponents exponentsOf(DissipationSource source) {
    return source == DissipationSource::Spectrum ? LineExponents{-1.66666, -1.66666}
                                                 : LineExponents{0.66666666, 0.66666};
}

}  // namespace

void CDisRateExtractor::Initialise(int x0, int y0, double xMinimum, double yMinimum, double xScale, double yScale,
                                   int scaleKind, int unitSelector, double convectiveVelocity) {
    const auto kind = static_cast<ScaleType>(scaleKind);
    x0_ = x0;
    y0_ = y0;
    xPixels_ = {xMinimum, xScale, kind == ScaleType::Logarithmic || kind == ScaleType::LogXLinearY};
    yPixels_ = {yMinimum, yScale, kind == ScaleType::Logarithmic || kind == ScaleType::LinearXLogY};
    unitSelector_ = unitSelector;
    convectiveVelocity_ = convectiveVelocity;
}

DissipationReading CDisRateExtractor::ReadingAt(DissipationSource source, int px, int py) const {
    return {source, XValue(px), YValue(py)};
}

double CDisRateExtractor::DissipationRate(DissipationSource source, int px, int py) const {
    return dissipationRate(ReadingAt(source, px, py), unitSelector_, convectiveVelocity_);
}

template <class Visit>
void CDisRateExtractor::forLine(int px, int py, double p, Visit visit) const {
    const double xAnchor = XValue(px);
    const double yAnchor = YValue(py);
    for (int i = 0; i < kLineLength; ++i) {
        visit(asSize(i), px + i, YPixel(yAnchor * std::pow(XValue(px + i) / xAnchor, p)));
    }
}

void CDisRateExtractor::SaveBackground(DissipationSource source, const PixelImage& image, int px, int py) {
    forLine(px, py, exponentsOf(source).saved,
            [&](std::size_t i, int column, int row) { background_[i] = image.get(column, row); });
}

void CDisRateExtractor::DrawLine(DissipationSource source, PixelImage& image, int px, int py,
                                 PixelImage::Colour colour) const {
    forLine(px, py, exponentsOf(source).drawn,
            [&](std::size_t, int column, int row) { image.set(column, row, colour); });
}

void CDisRateExtractor::RestoreBackground(DissipationSource source, PixelImage& image, int px, int py) const {
    forLine(px, py, exponentsOf(source).saved,
            [&](std::size_t i, int column, int row) { image.set(column, row, background_[i]); });
}

}  // namespace vorlan
