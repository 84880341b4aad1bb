#include "plot/NiceNumbers.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace vorlan;

TEST(NiceNumbers, SplitsIntoMantissaAndExponent) {
    constexpr struct {
        double v;
        double mantissa;
        double exponent;
    } rows[] = {{1.0, 1.0, 0.0},   {4.6625, 4.6625, 0.0}, {37.3, 3.73, 1.0},
                {0.25, 2.5, -1.0}, {0.004, 4.0, -3.0},    {1e6, 1.0, 6.0}};
    for (const auto& row : rows) {
        EXPECT_NEAR(splitDecimal(row.v).mantissa, row.mantissa, 1e-12) << row.v;
        EXPECT_EQ(splitDecimal(row.v).exponent, row.exponent) << row.v;
    }
    EXPECT_EQ(splitDecimal(0.0).mantissa, 0.0);
    EXPECT_EQ(splitDecimal(-3.0).mantissa, -3.0);
    EXPECT_EQ(splitDecimal(-3.0).exponent, -3.0);
}

TEST(NiceNumbers, ChoosesTheStepOfEachInterval) {
    constexpr struct {
        double mantissa;
        double step;
    } rows[] = {{0.5, 0.5},    {1.0, 1.0},    {1.4999, 1.0}, {1.5, 2.0},    {2.4999, 2.0},
                {2.5, 2.5},    {3.4999, 2.5}, {3.5, 4.0},    {4.4999, 4.0}, {4.5, 5.0},
                {7.4999, 5.0}, {7.5, 7.5},    {7.999, 7.5},  {8.0, 10.0},   {10.0, 10.0}};
    for (const auto& row : rows) {
        EXPECT_EQ(niceMantissa(row.mantissa), row.step) << row.mantissa;
    }
    EXPECT_DOUBLE_EQ(niceStep(0.0037), 0.004);
    EXPECT_DOUBLE_EQ(niceStep(780.0), 750.0);
}

TEST(NiceNumbers, RoundsLimitsAwayFromTheData) {
    constexpr struct {
        double x;
        double step;
        double lower;
        double upper;
    } rows[] = {{37.3, 5.0, 35.0, 40.0}, {10.0, 2.0, 8.0, 12.0},  {0.0, 2.0, -2.0, 0.0},
                {-3.0, 2.0, -4.0, -4.0}, {-4.0, 2.0, -6.0, -4.0}, {0.5, 1.0, 0.0, 1.0}};
    for (const auto& row : rows) {
        EXPECT_EQ(lowerLimit(row.x, row.step), row.lower) << row.x;
        EXPECT_EQ(upperLimit(row.x, row.step), row.upper) << row.x;
    }
    double sum = 0.0;
    for (int i = 0; i < 7; ++i) {
        sum += 0.1;
    }
    EXPECT_EQ(upperLimit(0.65, 0.1), sum) << "the rounding errors of repeated addition belong to the limit";
}

TEST(NiceNumbers, RoundingEndsForValuesThatNoSumReaches) {
    EXPECT_LE(lowerLimit(1e18, 1.0), 1e18);
    EXPECT_GE(upperLimit(1e18, 1.0), 1e18);
    EXPECT_GE(upperLimit(1e300, 1e-300), 1e300);
    EXPECT_FALSE(std::isfinite(upperLimit(INFINITY, 1.0)));
    EXPECT_EQ(upperLimit(2.0, 0.0), 2.0);
}
