#include "plot/SlopeTriangle.h"

#include <cmath>
#include <cstdlib>

namespace vorlan {

namespace {

constexpr int kTextDistance = 6;

PlacedText nameBeside(const SlopeTriangle& triangle, const Spot& corner, const Spot& end, bool rightward,
                      const FontDescription& font, const TextMeasure& measure, double lengthScale) {
    const int distance = static_cast<int>(std::lround(kTextDistance * lengthScale));
    const int width = measure.width(triangle.name, font);
    const int height = measure.height(font);
    const int left = rightward ? corner.x + distance : corner.x - distance - width;
    const int top = (corner.y + end.y) / 2 - height / 2;
    return {triangle.name, {left, top, left + width, top + height}, font};
}

}  // namespace

SlopeTriangleShape slopeTriangleShape(const SlopeTriangle& triangle, const CScreenUtils& geometry,
                                      const FontDescription& font, const TextMeasure& measure, double lengthScale) {
    const PixelScale xPixels = geometry.xPixels();
    const PixelScale yPixels = geometry.yPixels();
    const auto law = [&](double x) { return triangle.y * std::pow(x / triangle.from, triangle.exponent); };
    for (const double x : {triangle.from, triangle.to}) {
        if (!xPixels.places(x) || !yPixels.places(law(x))) {
            return {};
        }
    }
    const auto spot = [&](double x, double y) { return Spot{geometry.xPixel(x), geometry.yPixel(y)}; };
    const Spot begin = spot(triangle.from, triangle.y);
    const Spot end = spot(triangle.to, law(triangle.to));
    const Spot corner{end.x, begin.y};

    SlopeTriangleShape shape;
    shape.slope.push_back(begin);
    if (!(geometry.logX() && geometry.logY())) {
        const int step = end.x < begin.x ? -1 : 1;
        for (int px = begin.x + step; (end.x - px) * step > 0; px += step) {
            if (!geometry.overXRange(px)) {
                continue;
            }
            const double value = law(geometry.xValue(px));
            if (yPixels.places(value)) {
                shape.slope.push_back({px, geometry.yPixel(value)});
            }
        }
    }
    shape.slope.push_back(end);
    shape.legs = {begin, corner, end};
    shape.texts.push_back(nameBeside(triangle, corner, end, end.x >= begin.x, font, measure, lengthScale));
    return shape;
}

}  // namespace vorlan
