#include "stages/PlanReadOut.h"

#include <cstdint>

#include "model/Text.h"

namespace vorlan {

namespace {
constexpr std::int64_t kReach = 6;  // pixels from the cursor to a point that it is on
}

std::string planReadOut(const Diagram& plan, const CScreenUtils& geometry, int px, int py) {
    if (plan.labels.empty() || !geometry.contains(px, py)) {
        return {};
    }
    const Diagram::PointLabel* nearest = nullptr;
    std::int64_t distance = kReach * kReach;
    for (const Diagram::PointLabel& label : plan.labels) {
        const std::int64_t dx = geometry.xPixel(label.x) - px;
        const std::int64_t dy = geometry.yPixel(label.y) - py;
        if (dx * dx + dy * dy <= distance && (nearest == nullptr || dx * dx + dy * dy < distance)) {
            nearest = &label;
            distance = dx * dx + dy * dy;
        }
    }
    if (nearest != nullptr) {
        return nearest->detail;
    }
    // The titles of the axes begin with their letters unless the user has given them others.
    const auto letter = [](const std::string& title, const char* other) {
        const bool known =
            !title.empty() && title[0] >= 'X' && title[0] <= 'Z' && (title.size() == 1 || title[1] == ',');
        return known ? title.substr(0, 1) : std::string(other);
    };
    return letter(plan.frame.xTitle, "Horizontal") + ": " + numberText(geometry.xValue(px), 3) + " m   " +
           letter(plan.frame.yTitle, "Vertical") + ": " + numberText(geometry.yValue(py), 3) + " m";
}

}  // namespace vorlan
