#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <utility>

#include "analysis/kernels/SlidingProducts.h"
#include "analysis/kernels/SquaredDifferences.h"
#include "analysis/kernels/TrigonometricSums.h"
#include "model/Errors.h"
#include "model/StoreValue.h"

namespace vorlan {
namespace {

using Values = std::vector<double>;

/// Deviations of several magnitudes, both signs and some exact zeros: sums of them depend on their order.
Values roughSeries(std::size_t size, std::uint32_t seed) {
    Values values(size);
    for (double& v : values) {
        seed = seed * 1664525U + 1013904223U;
        v = (static_cast<double>(seed >> 8) / 16777216.0 - 0.5) * (seed % 7 == 0 ? 300.0 : 2.7);
        if (seed % 31 == 0) {
            v = 0.0;
        }
    }
    return values;
}

std::vector<std::uint64_t> bytesOf(const Values& values) {
    std::vector<std::uint64_t> bytes;
    for (const double v : values) {
        bytes.push_back(std::bit_cast<std::uint64_t>(v));
    }
    return bytes;
}

class EverySet : public testing::TestWithParam<InstructionSet> {
  protected:
    const KernelSet& kernels() const { return kernelsOf(GetParam()); }
    NoProgress progress_;
};

INSTANTIATE_TEST_SUITE_P(Kernels, EverySet, testing::ValuesIn(availableInstructionSets()),
                         [](const auto& set) { return std::string(nameOf(set.param)); });

// Sizes below a register, around a block of lags of every set, and beyond several blocks.
const std::vector<std::size_t> kSizes = {1, 2, 3, 7, 8, 9, 15, 17, 47, 48, 49, 127, 128, 129, 255, 257, 401, 1003};

TEST_P(EverySet, SumsOverLagsHaveTheBytesOfThePlainLoops) {
    const auto expectPlain = [this](std::size_t n, std::size_t taps, std::size_t lags) {
        SCOPED_TRACE(testing::Message() << n << " samples, " << taps << " factors, " << lags << " lags");
        const Values x = roughSeries(n, 1);
        const Values y = roughSeries(taps, 2);
        Values products(lags);
        Values squares(std::min(lags, n));
        for (std::size_t k = 0; k < lags; ++k) {
            for (std::size_t j = 0; j < taps && j + k < n; ++j) {
                products[k] += x[j + k] * y[j];
            }
            for (std::size_t j = 0; j + k < n; ++j) {
                squares[k] += (x[j] - x[j + k]) * (x[j] - x[j + k]);
            }
        }
        ASSERT_EQ(bytesOf(slidingProducts(x, y, lags, progress_, kernels())), bytesOf(products));
        ASSERT_EQ(bytesOf(squaredDifferences(x, squares.size(), progress_, kernels())), bytesOf(squares));
    };
    for (const std::size_t n : kSizes) {
        for (const std::size_t taps : {n, n / 2 + 1, std::size_t{1}}) {
            for (const std::size_t lags : {std::size_t{0}, std::size_t{1}, (n + 1) / 2, n, n + 5}) {
                expectPlain(n, taps, lags);
            }
        }
    }
    // Longer than one piece of work within a block of lags.
    expectPlain(70001, 70001, 3);
}

TEST_P(EverySet, PowerSumsHaveTheBytesOfThePlainLoop) {
    const Values x = roughSeries(1003, 11);
    const Values means = roughSeries(kMostBands, 12);
    BandSums sums{};
    std::copy(means.begin(), means.end(), sums.means);
    // In two pieces: the sums go on.
    kernels().powerSums(x.data(), 402, sums);
    kernels().powerSums(x.data() + 402, x.size() - 402, sums);
    ASSERT_LE(kernels().bands, kMostBands);
    for (std::size_t b = 0; b < kernels().bands; ++b) {
        double squares = 0.0;
        double cubes = 0.0;
        double fourths = 0.0;
        for (const double value : x) {
            const double d = value - means[b];
            squares += d * d;
            cubes += d * d * d;
            fourths += d * d * d * d;
        }
        EXPECT_EQ(bytesOf({sums.squares[b], sums.cubes[b], sums.fourths[b]}), bytesOf({squares, cubes, fourths})) << b;
    }
}

TEST_P(EverySet, ColumnSumsAndProductsHaveTheBytesOfThePlainLoops) {
    constexpr std::size_t kSamples = 1003;
    std::vector<std::vector<std::int32_t>> units;
    for (const std::uint32_t seed : {21U, 22U, 23U}) {
        units.emplace_back();
        for (const double v : roughSeries(kSamples, seed)) {
            units.back().push_back(static_cast<std::int32_t>(1e4 * v));
        }
    }
    const std::array<UnitColumn, 3> columns = {
        {{units[0].data(), 0.01, 0.3}, {units[1].data(), 0.001, -7.1}, {units[2].data(), 0.02, 0.0}}};
    const auto deviation = [&](std::size_t c, std::size_t i) {
        return columns[c].units[i] * columns[c].scale - columns[c].mean;
    };
    ColumnSums totals{};
    std::array<ColumnSums, 3> powers{};
    // In pieces that leave none to three samples over: the sums go on.
    for (const auto& [first, count] :
         {std::pair(0, 0), std::pair(0, 1), std::pair(1, 402), std::pair(403, 3), std::pair(406, 597)}) {
        std::array<UnitColumn, 3> part = columns;
        for (UnitColumn& column : part) {
            column.units += first;
        }
        kernels().columnTotals(part.data(), static_cast<std::size_t>(count), totals);
        kernels().columnPowers(part.data(), static_cast<std::size_t>(count), powers.data());
    }
    for (std::size_t c = 0; c < columns.size(); ++c) {
        Values expected(4);
        for (std::size_t i = 0; i < kSamples; ++i) {
            const double d = deviation(c, i);
            expected[0] += d;
            expected[1] += d * d;
            expected[2] += d * d * d;
            expected[3] += d * d * d * d;
        }
        EXPECT_EQ(bytesOf({totals.of[c], powers[0].of[c], powers[1].of[c], powers[2].of[c]}), bytesOf(expected)) << c;
    }
    // Small resolutions make products that no integer holds, none makes infinite ones and such that are no number.
    for (const double resolution : {0.01, 1e-9, 0.0}) {
        for (const std::size_t count : {std::size_t{0}, std::size_t{3}, std::size_t{1002}, kSamples}) {
            std::vector<std::int32_t> stored(kSamples, 77);
            kernels().unitProducts(columns[0], columns[1], resolution, count, stored.data());
            for (std::size_t i = 0; i < kSamples; ++i) {
                const std::int32_t expected =
                    i < count ? truncateToInt32(deviation(0, i) * deviation(1, i) / resolution) : 77;
                ASSERT_EQ(stored[i], expected) << i;
            }
        }
    }
}

TEST(Kernels, EverySetGivesTheSameTrigonometricBytes) {
    NoProgress progress;
    const KernelSet& plain = kernelsOf(InstructionSet::Plain);
    for (const std::size_t length : {5U, 130U, 777U}) {
        const std::vector<Values> terms(5, roughSeries(length, 9));
        const auto cosines = cosineSums(terms, length + 1, length + 3, progress, plain);
        const auto sines = sineSums(terms, length + 1, length + 3, progress, plain);
        for (const InstructionSet set : availableInstructionSets()) {
            const auto otherCosines = cosineSums(terms, length + 1, length + 3, progress, kernelsOf(set));
            const auto otherSines = sineSums(terms, length + 1, length + 3, progress, kernelsOf(set));
            for (std::size_t s = 0; s < terms.size(); ++s) {
                EXPECT_EQ(bytesOf(otherCosines[s]), bytesOf(cosines[s])) << nameOf(set);
                EXPECT_EQ(bytesOf(otherSines[s]), bytesOf(sines[s])) << nameOf(set);
                // How many series are summed together does not show.
                EXPECT_EQ(bytesOf(otherCosines[s]), bytesOf(otherCosines[0]));
            }
        }
    }
}

}  // namespace
}  // namespace vorlan
