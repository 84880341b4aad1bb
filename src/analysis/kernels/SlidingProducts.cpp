#include "analysis/kernels/SlidingProducts.h"

#include <algorithm>

#include "analysis/kernels/Pacer.h"

namespace vorlan {

namespace {
// Steps per call: long series pump within one block of lags.
constexpr std::size_t kSteps = std::size_t{1} << 16;
}  // namespace

std::vector<double> slidingProducts(std::span<const double> x, std::span<const double> y, std::size_t lags,
                                    Progress& progress, const KernelSet& kernels) {
    const std::size_t block = kernels.maxLags;
    // A register may start at the last x; a block's later lags start before the first y and end behind the last.
    // Fresh memory of long series takes as long as what is done with it: events are handled after each.
    std::vector<double> paddedX(x.size() + kernels.lanes, 0.0);
    progress.pump();
    std::copy(x.begin(), x.end(), paddedX.begin());
    progress.pump();
    std::vector<double> paddedY(y.size() + 2 * block, 0.0);
    progress.pump();
    std::copy(y.begin(), y.end(), paddedY.begin() + static_cast<std::ptrdiff_t>(block));
    progress.pump();
    std::vector<double> result(lags);
    progress.pump();
    std::vector<double> sums(block);
    Pacer pacer(progress, static_cast<double>(lags) * static_cast<double>(x.size()));
    for (std::size_t first = 0; first < lags; first += block) {
        const std::size_t count = std::min(block, lags - first);
        std::fill(sums.begin(), sums.end(), 0.0);
        const std::size_t end = std::min(x.size(), first + y.size() + block - kernels.lanes);
        for (std::size_t p = first; p < end; p += kSteps) {
            const std::size_t steps = std::min(kSteps, end - p);
            kernels.slidingProducts(paddedX.data() + p, paddedY.data() + block + (p - first), steps, count,
                                    sums.data());
            pacer.worked(steps * count);
        }
        std::copy_n(sums.begin(), count, result.begin() + static_cast<std::ptrdiff_t>(first));
    }
    progress.pump();
    return result;
}

}  // namespace vorlan
