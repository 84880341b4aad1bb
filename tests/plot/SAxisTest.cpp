#include "plot/SAxis.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/Archive.h"
#include "model/FrameAttributes.h"
#include "plot/FixedMeasure.h"

using namespace vorlan;

namespace {

SAxis axis(AxisSide side) {
    SAxis a;
    a.side = static_cast<std::int32_t>(side);
    a.originX = 100;
    a.originY = 200;
    a.markCount = 2;
    a.pixelsPerMark = 40;
    a.length = 80;
    a.minimum = -1.0;
    a.maximum = 1.0;
    a.markStep = 1.0;
    a.gridLength = 60;
    return a;
}

std::vector<int> offsets(const std::vector<Line>& lines, bool horizontal) {
    std::vector<int> result;
    for (const Line& line : lines) {
        result.push_back(horizontal ? line.from.x - 100 : 200 - line.from.y);
    }
    return result;
}

}  // namespace

TEST(SAxis, LinearTicksMarksAndLine) {
    const SAxis bottom = axis(AxisSide::Bottom);
    EXPECT_EQ(bottom.axisLine(), (Line{{100, 200}, {180, 200}}));
    EXPECT_EQ(offsets(bottom.linearTicks(), true), (std::vector<int>{0, 20, 40, 60}));
    EXPECT_EQ(bottom.linearTicks()[1], (Line{{120, 200}, {120, 203}}));
    EXPECT_EQ(offsets(bottom.marks(), true), (std::vector<int>{0, 40, 80}));
    EXPECT_EQ(bottom.marks()[2], (Line{{180, 200}, {180, 206}}));
    SAxis left = axis(AxisSide::Left);
    left.markLength = -6;
    left.ticksPerMark = 3;
    EXPECT_EQ(left.axisLine(), (Line{{100, 200}, {100, 120}}));
    EXPECT_EQ(left.linearTicks()[1], (Line{{100, 190}, {97, 190}}));
    EXPECT_EQ(left.marks()[1], (Line{{100, 160}, {106, 160}}));
    left.ticksPerMark = 100;
    EXPECT_TRUE(left.linearTicks().empty()) << "no ticks closer than a pixel";
}

TEST(SAxis, LabelsKeepTheirDigitsAndApart) {
    const FixedMeasure measure;
    SAxis a = axis(AxisSide::Bottom);
    a.minimum = -0.3;
    a.markStep = 0.1;
    a.markCount = 6;
    a.length = 240;
    std::vector<std::string> texts;
    for (const PlacedText& label : a.linearLabels(measure).texts) {
        texts.push_back(label.text);
    }
    EXPECT_EQ(texts, (std::vector<std::string>{"-0.3", "-0.2", "-0.1", "0.0", "0.1", "0.2", "0.3"}));
    a.pixelsPerMark = 15;
    const std::vector<PlacedText> kept = a.linearLabels(measure).texts;
    for (std::size_t i = 1; i < kept.size(); ++i) {
        EXPECT_FALSE(kept[i].box.overlaps(kept[i - 1].box));
    }
    EXPECT_EQ(kept.size(), 4U);
}

TEST(SAxis, RecomputesMarksFromLimitsAndStep) {
    SAxis a = axis(AxisSide::Bottom);
    a.minimum = 0.0;
    a.maximum = 37.0;
    a.markStep = 5.0;
    a.recomputeMarks();
    EXPECT_EQ(a.markCount, 7);
    EXPECT_EQ(a.pixelsPerMark, 11);
}

TEST(SAxis, SurvivesAnArchive) {
    SAxis stored = axis(AxisSide::Right);
    stored.title = "Time, s";
    stored.labelFont.setHeight(20);
    stored.gridColour = 77;
    Archive out = Archive::storing();
    stored.Serialize(out);
    Archive in = Archive::loading(out.bytes());
    SAxis loaded;
    loaded.Serialize(in);
    EXPECT_EQ(in.remaining(), 0U);
    EXPECT_EQ(loaded.title, "Time, s");
    EXPECT_EQ(loaded.labelFont, stored.labelFont);
    EXPECT_EQ(loaded.gridColour, 77);
    EXPECT_EQ(loaded.maximum, 1.0);
}
