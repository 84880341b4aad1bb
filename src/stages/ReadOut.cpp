// Status bar texts for a cursor over a diagram.
#include <algorithm>

#include "model/Index.h"
#include "model/Text.h"
#include "stages/StagePanes.h"

namespace vorlan {

namespace {

// A quantity's name, its value and its unit.
std::string told(const char* name, double value, const char* unit = "", int digits = 2) {
    return name + numberText(value, digits) + unit;
}

std::string axisText(Quantity quantity, double x) {
    switch (quantity) {
        case Quantity::Record:
        case Quantity::Time:
            return told("Time: ", x, "s");
        case Quantity::Correlation:
        case Quantity::Lag:
            return told("Lag: ", x, "s");
        case Quantity::Spectrum:
        case Quantity::CrossSpectrum:
        case Quantity::Coherence:
        case Quantity::Phase:
            return told("Frequency: ", x, "", 3);
        case Quantity::Density:
            return told("Velocity: ", x, " cm/s");
        case Quantity::ContributionRate:
        case Quantity::TimeRate:
            return told("Hole size: ", x);
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
    const Quantity quantity = stageView(stage).quantities.at(asSize(pane));
    const double x = geometry.xValue(px);
    if (!geometry.contains(px, py)) {
        return axisText(quantity, x);
    }
    const double y = geometry.yValue(py);
    switch (quantity) {
        case Quantity::Record:
            return told("Time: ", x, " s") + (value == PhysicalValue::Stresses ? told("   Stress: ", y, " (cm/s)^2")
                                                                               : told("   Velocity: ", y, " cm/s"));
        case Quantity::Correlation:
            return told("Lag Time: ", x, " s") + told("   Correlation : ", y);
        case Quantity::Spectrum:
        case Quantity::CrossSpectrum:
            return axisText(quantity, x) + "   Spectral density: " + withoutEmptySign(formatted("%.4g", y));
        case Quantity::Coherence:
            return axisText(quantity, x) + told("   Coherence: ", y);
        case Quantity::Phase:
            return axisText(quantity, x) + told("   Phase: ", y, " deg", 1);
        case Quantity::Density:
            return axisText(quantity, x) + told("   Density: ", y, "", 4);
        case Quantity::ContributionRate:
            return axisText(quantity, x) + told("   Contribution rate: ", y);
        case Quantity::TimeRate:
            return axisText(quantity, x) + told("   Fractional time: ", y);
        default:
            return axisText(quantity, x);
    }
}

std::string dragReadOut(Stage stage, Pane pane, double from, double to) {
    return stage == Stage::PreProcessing && pane == Pane::LeftTop
               ? told("Time interval from: ", from, " s") + told("   to: ", to, " s")
               : std::string();
}

}  // namespace vorlan
