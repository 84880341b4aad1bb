#include "analysis/kernels/SlidingProducts.h"

#include <algorithm>

#include "analysis/kernels/Pacer.h"

namespace vorlan {

namespace {
// Steps per call: long series pump within one block of lags.
constexpr std::size_t kSteps = std::size_t{1} << 16;

// The series between zeros. Fresh memory of a long one takes as long as what is done with it: some at a time.
std::vector<double> padded(std::span<const double> series, std::size_t before, std::size_t behind, Progress& progress) {
    std::vector<double> padded;
    padded.reserve(before + series.size() + behind);
    padded.resize(before, 0.0);
    for (std::size_t first = 0; first < series.size(); first += kSteps) {
        const std::span<const double> part = series.subspan(first, std::min(kSteps, series.size() - first));
        padded.insert(padded.end(), part.begin(), part.end());
        progress.pump();
    }
    padded.resize(before + series.size() + behind, 0.0);
    return padded;
}

}  // namespace

std::vector<double> slidingProducts(std::span<const double> x, std::span<const double> y, std::size_t lags,
                                    Progress& progress, const KernelSet& kernels) {
    const std::size_t block = kernels.maxLags;
    // A register may start at the last x; a block's later lags start before the first y and end behind the last.
    const std::vector<double> paddedX = padded(x, 0, kernels.lanes, progress);
    const std::vector<double> paddedY = padded(y, block, block, progress);
    std::vector<double> result(lags);
    progress.pump();
    std::vector<double> sums(block);
    Pacer pacer(progress, static_cast<double>(lags) * static_cast<double>(std::min(x.size(), y.size() + block)));
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
