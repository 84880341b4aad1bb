#include "analysis/kernels/SquaredDifferences.h"

#include <algorithm>

#include "analysis/kernels/Pacer.h"

namespace vorlan {

namespace {
constexpr std::size_t kSteps = std::size_t{1} << 16;
}  // namespace

std::vector<double> squaredDifferences(std::span<const double> values, std::size_t lags, Progress& progress,
                                       const KernelSet& kernels) {
    const std::size_t block = kernels.maxLags;
    std::vector<double> result(lags);
    std::vector<double> sums(block);
    Pacer pacer(progress, static_cast<double>(lags) * static_cast<double>(values.size()));
    for (std::size_t first = 0; first < lags; first += block) {
        const std::size_t count = std::min(block, lags - first);
        std::fill(sums.begin(), sums.end(), 0.0);
        for (std::size_t p = first; p < values.size(); p += kSteps) {
            const std::size_t end = std::min(values.size(), p + kSteps);
            kernels.squaredDifferences(values.data(), values.size(), first, count, p, end, sums.data());
            pacer.worked((end - p) * count);
        }
        std::copy_n(sums.begin(), count, result.begin() + static_cast<std::ptrdiff_t>(first));
    }
    progress.pump();
    return result;
}

}  // namespace vorlan
