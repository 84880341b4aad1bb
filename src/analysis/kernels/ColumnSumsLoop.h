#pragma once

#include "analysis/kernels/UnitColumnLoads.h"

namespace vorlan {
namespace {

/// Four samples of three columns, sample by sample; the fourth lane is not used.
struct FourSamples {
    FourUnits of[4];

    FourSamples(FourUnits x, FourUnits y, FourUnits z) {
        const FourUnits low = __builtin_shufflevector(x, y, 0, 4, 1, 5);
        const FourUnits high = __builtin_shufflevector(x, y, 2, 6, 3, 7);
        of[0] = __builtin_shufflevector(low, z, 0, 1, 4, 4);
        of[1] = __builtin_shufflevector(low, z, 2, 3, 5, 5);
        of[2] = __builtin_shufflevector(high, z, 0, 1, 6, 6);
        of[3] = __builtin_shufflevector(high, z, 2, 3, 7, 7);
    }
};

/// Sums of neighbouring powers of the deviations, the first of them being FirstPower. Lanes are columns, so that every
/// sum takes its samples in their order.
template <std::size_t FirstPower, std::size_t Powers>
void columnSumsLoop(const UnitColumn* columns, std::size_t count, ColumnSums* sums) {
    const UnitColumn x = columns[0];
    const UnitColumn y = columns[1];
    const UnitColumn z = columns[2];
    const Four scale{x.scale, y.scale, z.scale, 0.0};
    const Four mean{x.mean, y.mean, z.mean, 0.0};
    Four sum[Powers];
    for (std::size_t p = 0; p < Powers; ++p) {
        sum[p] = Four{sums[p].of[0], sums[p].of[1], sums[p].of[2], 0.0};
    }
    const std::size_t fours = count / 4 * 4;
    for (std::size_t i = 0; i < fours; i += 4) {
        const FourSamples samples(loadUnits(x.units + i), loadUnits(y.units + i), loadUnits(z.units + i));
#pragma GCC unroll 4
        for (const FourUnits& units : samples.of) {
            const Four d = asDoubles(units) * scale - mean;
            Four power = d;
            for (std::size_t p = 1; p < FirstPower; ++p) {
                power *= d;
            }
#pragma GCC unroll 3
            for (std::size_t p = 0; p < Powers; ++p) {
                sum[p] += power;
                power *= d;
            }
        }
    }
    for (std::size_t p = 0; p < Powers; ++p) {
        for (std::size_t c = 0; c < kSummedColumns; ++c) {
            sums[p].of[c] = sum[p][c];
        }
    }
    for (std::size_t i = fours; i < count; ++i) {
        for (std::size_t c = 0; c < kSummedColumns; ++c) {
            const double d = deviation(columns[c], i);
            double power = d;
            for (std::size_t p = 1; p < FirstPower; ++p) {
                power *= d;
            }
            for (std::size_t p = 0; p < Powers; ++p) {
                sums[p].of[c] += power;
                power *= d;
            }
        }
    }
}

void columnTotalsLoop(const UnitColumn* columns, std::size_t count, ColumnSums& totals) {
    columnSumsLoop<1, 1>(columns, count, &totals);
}

void columnPowersLoop(const UnitColumn* columns, std::size_t count, ColumnSums* powers) {
    columnSumsLoop<2, 3>(columns, count, powers);
}

}  // namespace
}  // namespace vorlan
