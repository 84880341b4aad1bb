#pragma once

#include <string>
#include <vector>

#include "model/FontDescription.h"
#include "model/SObject.h"
#include "plot/Shapes.h"
#include "plot/TextMeasure.h"

namespace vorlan {

/// Which side of the plot area an axis stands on. Top and Right carry neither labels nor grid.
enum class AxisSide : std::int32_t { Bottom = 0, Left = 1, Top = 2, Right = 3 };

/// Labels of an axis and the pixels that marks, offset and labels take beside it.
struct AxisLabels {
    std::vector<PlacedText> texts;
    int room = 0;
};

/// One axis: where it lies, what it counts and how it is ruled. The operations give the geometry of its parts; they
/// draw nothing.
///
/// Marks stand at i * pixelsPerMark, i = 0..markCount. Tick and mark lengths are positive away from a bottom or left
/// axis (down, left) and negative into the plot. Every operation needs markCount >= 1.
class SAxis : public SObject {
  public:
    std::int32_t markCount = 1;      ///< intervals between marks; decades on a logarithmic axis
    std::int32_t pixelsPerMark = 1;  ///< pixels per decade on a logarithmic axis
    std::int32_t side = 0;           ///< AxisSide
    std::int32_t spare = 0;
    std::int32_t originX = 0;  ///< left end of a horizontal, lower end of a vertical axis
    std::int32_t originY = 0;
    std::int32_t length = 0;
    double minimum = 0.0;
    double maximum = 1.0;
    std::string title;
    FontDescription titleFont;
    std::int32_t tickLength = 3;
    std::int32_t markLength = 6;
    std::int32_t ticksPerMark = 1;  ///< a mark interval has one part more
    double markStep = 1.0;
    std::int32_t decimalDigits = 1;
    std::int32_t labelOffset = 3;
    std::int32_t secondSpare = 0;
    FontDescription labelFont;
    std::int32_t gridMode = 0;  ///< GridMode
    std::int32_t gridLength = 0;
    std::int32_t gridPenWidth = 1;
    std::int32_t gridPenStyle = 2;
    std::int32_t gridColour = 0;
    /// Pixels per decade of a logarithmic axis with an end between two powers of ten (negative when it runs backward);
    /// 0 for one of whole decades, which has pixelsPerMark. Not stored.
    double decadeScale = 0.0;

    const char* ClassName() const override { return "SAxis"; }
    void Serialize(Archive& archive) override;

    bool horizontal() const;
    /// Sets markCount = |maximum - minimum| / markStep truncated and pixelsPerMark = length div markCount.
    void recomputeMarks();
    double pixelsPerDecade() const { return decadeScale != 0.0 ? decadeScale : pixelsPerMark; }

    Line axisLine() const;
    /// Linear: at i * pixelsPerMark + j * t, j = 0..ticksPerMark, t = length div (markCount * (ticksPerMark + 1)).
    std::vector<Line> linearTicks() const;
    /// At i * pixelsPerMark + trunc(log10(k) * pixelsPerMark), k = 1..9; between other ends where the pixel scale of
    /// the axis puts them.
    std::vector<Line> logarithmicTicks() const;
    std::vector<Line> marks() const;
    /// "%.*f" of minimum + i * markStep without the sign of a zero, centred on the marks. None when the mark length is
    /// 0. A label that would cover the one before it is left out.
    AxisLabels linearLabels(const TextMeasure& measure) const;
    /// "10" with its exponent raised beside it, centred on the decades.
    AxisLabels logarithmicLabels(const TextMeasure& measure) const;
    /// Grid lines on the ticks and marks as gridMode says; none on the first and the last mark.
    std::vector<Line> linearGrid() const;
    std::vector<Line> logarithmicGrid() const;

  private:
    /// A power of ten on the axis, times a digit.
    struct DecadeStep {
        int decade;
        int offset;
    };
    /// Those of one digit k, 1..9; of whole decades without the end of the last one.
    std::vector<DecadeStep> decadeSteps(int k) const;
    std::vector<DecadeStep> decadeMarks() const;
    std::vector<int> decadeOffsets(int firstDigit) const;
    std::vector<int> markOffsets() const;
    Line strokeAt(int offset, int strokeLength) const;
    Line gridLineAt(int offset) const;
    bool carriesLabels() const;
    int tickSpacing() const;
    Box labelBox(int offset, int width, int height) const;
    int room(int labelWidth, int labelHeight) const;
    void addGridOnMarks(std::vector<Line>& lines) const;
    std::string linearLabel(double value) const;
};

}  // namespace vorlan
