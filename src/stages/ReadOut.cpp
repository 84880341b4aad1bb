// Status bar texts for a cursor over a diagram.
#include <algorithm>

#include "model/Text.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

std::string shown(double value) {
    return numberText(value, 2);
}

std::string axisText(Quantity quantity, double x) {
    switch (quantity) {
        case Quantity::Record:
        case Quantity::Time:
            return "Time: " + shown(x) + "s";
        case Quantity::Correlation:
        case Quantity::Lag:
            return "Lag: " + shown(x) + "s";
        case Quantity::Spectrum:
        case Quantity::CrossSpectrum:
        case Quantity::Coherence:
        case Quantity::Phase:
            return formatted("Frequency: %.3f", x);
        case Quantity::Density:
            return formatted("Velocity: %.2f cm/s", x);
        case Quantity::ContributionRate:
        case Quantity::TimeRate:
            return formatted("Hole size: %.2f", x);
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
    const Quantity quantity = stageView(stage).quantities.at(static_cast<std::size_t>(pane));
    const double x = geometry.xValue(px);
    if (!geometry.contains(px, py)) {
        return axisText(quantity, x);
    }
    const double y = geometry.yValue(py);
    switch (quantity) {
        case Quantity::Record:
            return "Time: " + shown(x) + " s   " +
                   (value == PhysicalValue::Stresses ? "Stress: " + shown(y) + " (cm/s)^2"
                                                     : "Velocity: " + shown(y) + " cm/s");
        case Quantity::Correlation:
            return "Lag Time: " + shown(x) + " s   Correlation : " + shown(y);
        case Quantity::Spectrum:
        case Quantity::CrossSpectrum:
            return formatted("Frequency: %.3f   Spectral density: %.4g", x, y);
        case Quantity::Coherence:
            return formatted("Frequency: %.3f   Coherence: %.2f", x, y);
        case Quantity::Phase:
            return formatted("Frequency: %.3f   Phase: %.1f deg", x, y);
        case Quantity::Density:
            return formatted("Velocity: %.2f cm/s   Density: %.4f", x, y);
        case Quantity::ContributionRate:
            return formatted("Hole size: %.2f   Contribution rate: %.2f", x, y);
        case Quantity::TimeRate:
            return formatted("Hole size: %.2f   Fractional time: %.2f", x, y);
        default:
            return axisText(quantity, x);
    }
}

std::string dragReadOut(Stage stage, Pane pane, double from, double to) {
    return stage == Stage::PreProcessing && pane == Pane::LeftTop
               ? "Time interval from: " + shown(from) + " s   to: " + shown(to) + " s"
               : std::string();
}

}  // namespace vorlan
