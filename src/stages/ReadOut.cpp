// Status bar texts for a cursor over a diagram.
#include <algorithm>

#include "model/Text.h"
#include "stages/PaneDescription.h"

namespace vorlan {

namespace {

enum class Quantity { Velocity, Stress, Correlation, Time, Lag, Nothing };

Quantity quantityOf(Stage stage, Pane pane, PhysicalValue value) {
    switch (stage) {
        case Stage::PreProcessing:
            if (pane != Pane::LeftTop) {
                return Quantity::Time;
            }
            return value == PhysicalValue::Stresses ? Quantity::Stress : Quantity::Velocity;
        case Stage::Stationarity:
            return Quantity::Time;
        case Stage::Spectral:
            return pane == Pane::LeftTop    ? Quantity::Correlation
                   : pane == Pane::RightTop ? Quantity::Lag
                                            : Quantity::Nothing;
        case Stage::Quadrants:
            return pane == Pane::LeftBottom || pane == Pane::RightBottom ? Quantity::Time : Quantity::Nothing;
        case Stage::CrossSpectral:
            return pane == Pane::LeftTop ? Quantity::Correlation : Quantity::Nothing;
        case Stage::Histograms:
        case Stage::MeanVelocityVectors:
            break;
    }
    return Quantity::Nothing;
}

std::string axisText(Quantity quantity, double x) {
    switch (quantity) {
        case Quantity::Velocity:
        case Quantity::Stress:
        case Quantity::Time:
            return formatted("Time: %.2fs", x);
        case Quantity::Correlation:
        case Quantity::Lag:
            return formatted("Lag: %.2fs", x);
        case Quantity::Nothing:
            break;
    }
    return {};
}

}  // namespace

std::string readOut(Stage stage, Pane pane, PhysicalValue value, const CScreenUtils& geometry, int px, int py) {
    if (!geometry.overXRange(px)) {
        return {};
    }
    const Quantity quantity = quantityOf(stage, pane, value);
    const double x = geometry.xValue(px);
    if (!geometry.contains(px, py)) {
        return axisText(quantity, x);
    }
    const double y = geometry.yValue(py);
    switch (quantity) {
        case Quantity::Velocity:
            return formatted("Time: %.2f s   Velocity: %.2f cm/s", x, y);
        case Quantity::Stress:
            return formatted("Time: %.2f s   Stress: %.2f (cm/s)^2", x, y);
        case Quantity::Correlation:
            return formatted("Lag Time: %.2f s   Correlation : %.2f", x, y);
        default:
            return axisText(quantity, x);
    }
}

std::string dragReadOut(Stage stage, Pane pane, const CScreenUtils& geometry, int fromPx, int toPx) {
    if (stage != Stage::PreProcessing || pane != Pane::LeftTop) {
        return {};
    }
    const auto [left, right] = std::minmax(fromPx, toPx);
    return formatted("Time interval from: %.2f s   to: %.2f s", geometry.xValue(left), geometry.xValue(right));
}

}  // namespace vorlan
