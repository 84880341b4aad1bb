#include "plot/AxisLimits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vorlan;

namespace {

AxisRule rule(bool lowerFromData, bool upperFromData, double lower = 0.0, double upper = 0.0) {
    AxisRule r;
    r.lowerFromData = lowerFromData;
    r.upperFromData = upperFromData;
    r.lower = lower;
    r.upper = upper;
    return r;
}

AxisRule withStep(AxisRule r, double step) {
    r.stepGiven = true;
    r.step = step;
    return r;
}

}  // namespace

TEST(AxisLimits, GivenStepRoundsFreeEndsAndIsNotThinned) {
    LinearLimits chosen = linearLimits(withStep(rule(false, true, 0.0), 3.0), {0.0, 10.0}, kXManner);
    EXPECT_FALSE(chosen.automaticStep);
    EXPECT_EQ(chosen.limits.upper, 12.0);
    EXPECT_EQ(chosen.limits.marks, 4);
    chosen = linearLimits(withStep(rule(false, false, 0.0, 10.0), 3.0), {0.0, 50.0}, kXManner);
    EXPECT_EQ(chosen.limits.upper, 10.0);
    EXPECT_EQ(chosen.limits.step, 3.0);
    EXPECT_EQ(chosen.limits.marks, 3);
    chosen = linearLimits(withStep(rule(true, true), 100.0), {-30.0, -20.0}, kXManner);
    EXPECT_GT(chosen.limits.upper, chosen.limits.lower);
    for (const double useless : {0.0, -1.0, std::nan(""), std::numeric_limits<double>::infinity(), 11.0, 1e-9}) {
        const AxisRule given = withStep(rule(false, false, 0.0, 10.0), useless);
        EXPECT_TRUE(linearLimits(given, {0.0, 1.0}, kXManner).automaticStep) << useless;
    }
}

TEST(AxisLimits, ExtremeDataGiveAnAxisWithALength) {
    constexpr double huge = std::numeric_limits<double>::max();
    const DataInterval rows[] = {{-huge, huge}, {1e18, 1e18}, {1e9, 1e9 + 1e-7}, {0.0, 5e-324}, {-2147483648.0, 3.0}};
    for (const DataInterval& data : rows) {
        for (const AxisManner& manner : {kXManner, kYManner}) {
            const AxisLimits limits = linearLimits(rule(true, true), data, manner).limits;
            EXPECT_LT(limits.lower, limits.upper) << data.lowest;
            EXPECT_TRUE(std::isfinite(limits.upper - limits.lower)) << data.lowest;
            EXPECT_GE(limits.marks, 1);
            EXPECT_LE(limits.marks, 20) << data.lowest;
        }
    }
    // All data below the given lower end.
    EXPECT_GT(linearLimits(rule(false, true, 100.0), {1.0, 5.0}, kXManner).limits.upper, 100.0);
}

TEST(AxisLimits, MarksAreHalvedUntilLabelsFit) {
    EXPECT_EQ(fittedMarks(11, 300 / 60, false), 5);
    EXPECT_EQ(fittedMarks(8, 8, false), 8);
    EXPECT_EQ(fittedMarks(7, 5, false), 3);
    EXPECT_EQ(fittedMarks(7, 5, true), 2);
    EXPECT_EQ(fittedMarks(3, 3, true), 2);
    EXPECT_EQ(fittedMarks(9, 0, false), 1);
    AxisLimits range;
    range.upper = 0.03;
    EXPECT_EQ(withMarks(range, 7).marks, 7);
    EXPECT_DOUBLE_EQ(withMarks(range, 7).step, 0.03 / 7);
}
