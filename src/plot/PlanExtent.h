#pragma once

#include <vector>

#include "plot/CScreenUtils.h"
#include "plot/DataExtent.h"
#include "plot/Shapes.h"
#include "plot/TextMeasure.h"

namespace vorlan {

/// The box that the automatic limits of a plan enclose: its points, and what stands at them in pixels, whatever the
/// scale: markers, arrows, names. The scale follows from the box, so it is found by layouts in turn.
class PlanExtent {
  public:
    /// points: the box of the points alone. A side of it without length gets the plan's room at both ends.
    PlanExtent(const Diagram& diagram, const TextMeasure& measure, double lengthScale, const DataExtent& points);

    const DataExtent& extent() const { return extent_; }
    /// Looks at a layout with the extent; false when it encloses everything. Else the extent is a larger one.
    bool grow(const CScreenUtils& geometry);

  private:
    /// What a point takes along one axis, pixels below and above it.
    struct Reach {
        double at;
        double below;
        double above;
    };

    void collect(const CScreenUtils& geometry);
    void addReach(double x, double y, const Spot& spot, const Spot& corner);
    static bool growAxis(const std::vector<Reach>& reaches, bool lowerFree, bool upperFree, const DataInterval& points,
                         double lower, double unitsPerPixel, int pixels, DataInterval& grown);

    const Diagram& diagram_;
    const TextMeasure& measure_;
    double lengthScale_;
    DataExtent points_;
    DataExtent extent_;
    std::vector<Reach> x_;
    std::vector<Reach> y_;
};

}  // namespace vorlan
