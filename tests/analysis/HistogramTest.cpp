#include "analysis/Histogram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "Records.h"
#include "analysis/MomentEstimators.h"
#include "model/StoreValue.h"

namespace vorlan::test {
namespace {

STimeSeries seriesOf(const std::vector<std::int32_t>& units, double scale) {
    STimeSeries series;
    series.values = columnOf(units, scale);
    return series;
}

std::vector<std::int32_t> plainHistogram(const STimeSeries& series, int grades) {
    const std::vector<double> x = series.values.Values();
    const double minimum = *std::min_element(x.begin(), x.end());
    const double maximum = *std::max_element(x.begin(), x.end());
    const double du = (maximum - minimum) / grades;
    std::vector<std::int32_t> units;
    for (int k = 0; k < grades; ++k) {
        const double lower = du * k + minimum;
        const double upper = k == grades - 1 ? maximum : lower + du;
        const auto count = std::count_if(x.begin(), x.end(), [&](double v) { return lower <= v && v <= upper; });
        units.push_back(truncateToInt32(static_cast<double>(count) / static_cast<double>(x.size()) / du /
                                        series.values.GetScale()));
    }
    return units;
}

TEST(Histogram, CountsEqualThePlainComparisons) {
    for (const double scale : {0.001, 0.01, 0.1, 1.0, -0.1}) {
        for (const bool outlier : {false, true}) {
            for (const int samples : {2, 3, 500, 1001}) {
                Numbers numbers(static_cast<std::uint32_t>(samples));
                std::vector<std::int32_t> units = {-40, 61};
                while (static_cast<int>(units.size()) < samples) {
                    units.push_back(numbers.next(-40, 61));
                }
                if (outlier) {
                    units.back() = 2000000000;
                    units.front() = -2000000000;
                }
                STimeSeries series = seriesOf(units, scale);
                for (const int grades : {1, 2, 7, 20, 40, 101, 1000}) {
                    SCOPED_TRACE(testing::Message() << scale << " " << outlier << " " << samples << " " << grades);
                    series.histogram.RemoveAll();
                    computeHistogram(series, grades);
                    EXPECT_EQ(unitsOf(series.histogram), plainHistogram(series, grades));
                }
            }
        }
    }
}

TEST(Histogram, ConstantSeriesStoreADivisionByZero) {
    STimeSeries series = seriesOf({5, 5, 5}, 0.01);
    computeHistogram(series, 2);
    EXPECT_EQ(unitsOf(series.histogram), std::vector<std::int32_t>(2, std::numeric_limits<std::int32_t>::min()));
    STimeSeries empty;
    EXPECT_THROW(computeHistogram(empty, 2), InvalidArgument);
    EXPECT_THROW(computeHistogram(series, 0), InvalidArgument);
}

TEST(Histogram, NormalCurveHasItsOwnPi) {
    STimeSeries series = seriesOf({0, 10000}, 0.001);
    series.moments = {5.0, 4.0, 0.0, 0.0};
    const NormalCurve curve = normalApproximation(series);
    ASSERT_EQ(curve.x.size(), 500U);
    EXPECT_EQ(curve.x[250], 250 * (10.0 / 500));
    EXPECT_EQ(curve.y.GetAt(250), 199);  // 1 / sqrt(4 * 6.28) = 0.19952; with 2 pi 0.19947
    EXPECT_EQ(curve.y.GetAt(0), static_cast<std::int32_t>(std::exp(-25.0 / 8.0) / std::sqrt(4.0 * 6.28) / 0.001));
    series.moments.variance = 1e-6;
    EXPECT_EQ(normalApproximation(series).y.GetAt(250), 399043);  // 2 pi would give 398942
    EXPECT_TRUE(normalApproximation(STimeSeries()).x.empty());
}

}  // namespace
}  // namespace vorlan::test
