#include "analysis/EventPatterns.h"

#include <algorithm>

#include "analysis/kernels/Pacer.h"

namespace vorlan {

namespace {

/// Where every event's surroundings start: its neighbour -reach, with count values to read. They lie in the record
/// itself, or near its ends in copies with zeros beyond: adding a zero changes no sum.
class Surroundings {
  public:
    Surroundings(std::span<const std::size_t> events, std::span<const double> x, std::size_t reach, std::size_t count) {
        const std::size_t size = x.size();
        head_.resize(reach + count);
        std::copy_n(x.begin(), std::min(size, count), head_.begin() + static_cast<std::ptrdiff_t>(reach));
        // Events from here on have neighbours behind the end.
        const std::size_t last = std::max(reach, size + reach + 1 - std::min(count, size + reach + 1));
        tail_.resize(last < size ? size - last + count : 0);
        if (!tail_.empty()) {
            std::copy(x.begin() + static_cast<std::ptrdiff_t>(last - reach), x.end(), tail_.begin());
        }
        starts_.resize(events.size());
        std::transform(events.begin(), events.end(), starts_.begin(), [&](std::size_t e) {
            return e < reach ? &head_[e] : e < last ? &x[e - reach] : &tail_[e - last];
        });
    }

    std::span<const double* const> starts() const { return starts_; }

  private:
    std::vector<double> head_;
    std::vector<double> tail_;
    std::vector<const double*> starts_;
};

}  // namespace

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
    const std::size_t rounded = (lags + kernels.lanes - 1) / kernels.lanes * kernels.lanes;
    const Surroundings surroundings(events, x, reach, rounded);
    const std::span<const double* const> starts = surroundings.starts();
    std::vector<double> sums(rounded);
    // So few events at a time that what surrounds them stays near while all lags take it.
    constexpr std::size_t kTerms = std::size_t{1} << 16;
    const std::size_t piece = std::clamp<std::size_t>(kTerms / rounded, 1, 1024);
    Pacer pacer(progress);
    for (std::size_t e = 0; e < starts.size(); e += piece) {
        const std::size_t count = std::min(piece, starts.size() - e);
        kernels.eventSums(starts.data() + e, count, rounded, sums.data());
        pacer.worked(count * rounded);
    }

    // Events e with 0 <= e + i - reach < N: as the lag rises, the first and the last of them move forward.
    std::size_t first =
        static_cast<std::size_t>(std::lower_bound(events.begin(), events.end(), reach) - events.begin());
    std::size_t last = events.size();
    for (std::size_t i = 0; i < lags; ++i) {
        while (first > 0 && events[first - 1] + i >= reach) {
            --first;
        }
        while (last > 0 && events[last - 1] + i >= x.size() + reach) {
            --last;
        }
        if (first < last) {
            pattern[wanted - reach + i] = sums[i] / static_cast<double>(last - first);
        }
    }
    return pattern;
}

}  // namespace vorlan
