#pragma once

#include <string>
#include <vector>

#include "plot/DataExtent.h"
#include "plot/SPlotFrame.h"

namespace vorlan {

enum class LegendPlace { Inside, Beside, Below, Nowhere };

/// What a layout is asked for besides the diagram itself.
struct FrameWishes {
    LegendPlace legend = LegendPlace::Inside;
    std::vector<std::string> above;  ///< lines between title and plot area
    std::vector<std::string> below;  ///< lines between labels and axis title
};

/// One layout in the making: the frame of a diagram for given extents of its data and a given place of its legend.
class FrameComposer {
  public:
    /// lengthScale as of SPlotFrame. The arguments must outlive the composer.
    FrameComposer(const Diagram& diagram, const TextMeasure& measure, double lengthScale, const Box& pane,
                  const DataExtent& extent, const FrameWishes& wishes);

    FrameLayout compose();

  private:
    int scaled(int pixels) const;
    int gap() const;
    int strokeLength(int stored) const;
    bool fullFrame() const { return frame_.frameStyle == 1; }
    int outwardMark() const;
    void prepareAxes();
    void chooseLimits();
    // Size of the labels of an axis before its length is known: those of its two ends.
    int endLabelWidth(const SAxis& axis, const AxisLimits& limits, bool logarithmic) const;
    int linesHeight(const std::vector<std::string>& lines, const FontDescription& font) const;
    bool placeVertically();
    // The axis cut to whole pixels per mark. False when there is no room for one label.
    bool fit(SAxis& axis, AxisLimits limits, bool automatic, int length, int labelSize);
    // Digits that the user has chosen, or that go with his step, stay.
    void chooseDigits(SAxis& axis, bool logarithmic, int stepMode, int stored, int usual) const;
    bool fitY();
    bool placeHorizontally();
    bool fitX();
    void finishAxes();
    static SAxis opposite(const SAxis& axis, int dx, int dy, AxisSide side);
    void addStrokes(const SAxis& axis, bool logarithmic);
    void collectShapes();
    // Left edge of a text centred on the plot area, moved where the pane would cut it.
    int centredLeft(int width) const;
    void addCentred(const std::vector<std::string>& lines, const FontDescription& font, int top);
    void addTitles();
    void placeLegendAtPlotArea();

    const Diagram& diagram_;
    const FrameAttributesType& frame_;
    const TextMeasure& measure_;
    double scale_;
    Box pane_;
    const DataExtent& extent_;
    const FrameWishes& wishes_;
    FrameLayout out_;
    bool logX_ = false;
    bool logY_ = false;
    SAxis x_;
    SAxis y_;
    AxisLimits xLimits_;
    AxisLimits yLimits_;
    bool xAutomatic_ = true;
    bool yAutomatic_ = true;
    SLegend legend_;
    std::vector<std::string> title_;
    std::vector<std::string> xTitle_;
    std::vector<std::string> yTitle_;
    std::vector<std::string> above_;
    std::vector<std::string> below_;
    int aboveTop_ = 0;
    int belowTop_ = 0;
    int labelHeight_ = 0;
    int xLabelWidth_ = 0;
    int titleTop_ = 0;
    int xTitleTop_ = 0;
    int yTitleLeft_ = 0;
};

}  // namespace vorlan
