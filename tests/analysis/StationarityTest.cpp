#include "analysis/Stationarity.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Records.h"
#include "model/StoreValue.h"

namespace vorlan::test {
namespace {

constexpr std::int32_t kNothing = std::numeric_limits<std::int32_t>::min();

using Bands = std::array<std::vector<std::int32_t>, 4>;

Bands bandsOf(const STimeSeries& series) {
    return {unitsOf(series.bandMeans), unitsOf(series.bandVariances), unitsOf(series.bandSkewness),
            unitsOf(series.bandKurtosis)};
}

/// One band over samples first..end-1, each value read back as stored.
void plainBand(Bands& bands, const std::vector<double>& x, int band, int first, int end) {
    const auto b = static_cast<std::size_t>(band);
    for (auto& column : bands) {
        column.resize(std::max(column.size(), b + 1));
    }
    const double m = end - first;
    double sum = 0.0;
    for (int i = first; i < end; ++i) {
        sum += x[static_cast<std::size_t>(i)];
    }
    bands[0][b] = truncateToInt32(sum / m / 0.0001);
    double s2 = 0.0;
    double s3 = 0.0;
    double s4 = 0.0;
    for (int i = first; i < end; ++i) {
        const double d = x[static_cast<std::size_t>(i)] - bands[0][b] * 0.0001;
        s2 += d * d;
        s3 += d * d * d;
        s4 += d * d * d * d;
    }
    bands[1][b] = truncateToInt32(s2 / (m - 1) / 0.0001);
    const double variance = bands[1][b] * 0.0001;
    bands[2][b] = truncateToInt32(s3 / (variance * m * std::sqrt(variance)) / 0.0001);
    bands[3][b] = truncateToInt32((s4 / (variance * variance * m) - 3) / 0.0001);
}

/// The sequence of computations with every overwriting in it.
Bands plainBands(const std::vector<double>& x, BandMode mode, int n) {
    Bands bands;
    const int length = static_cast<int>(x.size()) / n;
    const int half = length / 2;
    if (mode == BandMode::Cumulative) {
        for (int k = 0; k < n; ++k) {
            plainBand(bands, x, k, 0, (k + 1) * length);
        }
        return bands;
    }
    for (int k = 0; k < n - 2; ++k) {
        plainBand(bands, x, k, k * length, (k + 1) * length);
        plainBand(bands, x, k + 1, k * length + half, (k + 1) * length + half);
    }
    plainBand(bands, x, n - 1, (n - 1) * length, n * length);
    return bands;
}

TEST(Stationarity, BandsEqualThePlainSequence) {
    NoProgress progress;
    for (const int samples : {1003, 100, 16}) {
        for (const int n : {1, 2, 3, 7, 10, 16, 17, 20}) {
            for (const BandMode mode : {BandMode::Fixed, BandMode::Cumulative}) {
                SCOPED_TRACE(testing::Message() << samples << " samples, " << n << " bands, mode " << int(mode));
                SAdvProbe probe = velocityRecord(samples, 3);
                if (n > samples) {
                    EXPECT_EQ(analyseStationarity(probe, {mode, n}, progress),
                              "Band number should not be larger than the number of samples, 16!");
                    continue;
                }
                analyseStationarity(probe, {mode, n}, progress);
                for (int c = 0; c < 3; ++c) {
                    EXPECT_EQ(bandsOf(probe.Series(c)), plainBands(velocity(probe, c).Values(), mode, n));
                }
            }
        }
    }
}

TEST(Stationarity, TooFewSamplesStoreNothingNumeric) {
    SAdvProbe probe = velocityRecord(2);
    NoProgress progress;
    for (const BandMode mode : {BandMode::Fixed, BandMode::Cumulative}) {
        STimeSeries empty;
        computeBands(empty, mode, 3, progress);
        EXPECT_EQ(unitsOf(empty.bandMeans), std::vector<std::int32_t>(3, kNothing));
    }
    EXPECT_THROW(analyseStationarity(probe, {BandMode::Fixed, 0}, progress), InvalidArgument);
}

}  // namespace
}  // namespace vorlan::test
