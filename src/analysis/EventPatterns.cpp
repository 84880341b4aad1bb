#include "analysis/EventPatterns.h"

#include <algorithm>

#include "analysis/kernels/Pacer.h"

namespace vorlan {

std::vector<double> averageAround(std::span<const std::size_t> events, std::span<const double> x, int lag,
                                  Progress& progress, const KernelSet& kernels) {
    if (lag < 0) {
        return {};
    }
    const auto wanted = static_cast<std::size_t>(lag);
    std::vector<double> pattern(2 * wanted + 1);
    if (events.empty() || x.empty()) {
        return pattern;
    }
    // No event has a neighbour farther away than the record is long.
    const std::size_t reach = std::min(wanted, x.size() - 1);
    const std::size_t lags = 2 * reach + 1;
    const std::size_t block = kernels.maxLags;
    const std::size_t rounded = (lags + block - 1) / block * block;
    // Zeros around the record make its ends regular: adding them changes no sum.
    std::vector<double> padded(x.size() + reach + rounded);
    std::copy(x.begin(), x.end(), padded.begin() + static_cast<std::ptrdiff_t>(reach));
    std::vector<double> sums(rounded);
    constexpr std::size_t kPiece = std::size_t{1} << 15;
    Pacer pacer(progress);
    for (std::size_t first = 0; first < rounded; first += block) {
        for (std::size_t e = 0; e < events.size(); e += kPiece) {
            const std::size_t count = std::min(kPiece, events.size() - e);
            kernels.eventSums(padded.data() + first, events.data() + e, count, sums.data() + first);
            pacer.worked(count * block);
        }
    }

    for (std::size_t i = 0; i < lags; ++i) {
        // Events e with 0 <= e + i - reach < N.
        const auto first = std::lower_bound(events.begin(), events.end(), i < reach ? reach - i : 0);
        const auto last = std::lower_bound(first, events.end(), i > reach ? x.size() - (i - reach) : x.size());
        if (first != last) {
            pattern[wanted - reach + i] = sums[i] / static_cast<double>(last - first);
        }
    }
    return pattern;
}

}  // namespace vorlan
