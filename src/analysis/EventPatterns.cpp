#include "analysis/EventPatterns.h"

#include <algorithm>

#include "analysis/kernels/Pacer.h"
#include "model/Index.h"

namespace vorlan {

namespace {

using Events = std::span<const std::size_t>;

/// The sums of x around events for lags -reach, -reach + 1, ...: every sum goes from event to event. What lies beyond
/// the ends of x adds nothing.
class SumsAround {
  public:
    SumsAround(std::span<const double> x, std::size_t reach, std::size_t lags, std::size_t events, Progress& progress,
               const KernelSet& kernels)
        : x_(x),
          reach_(reach),
          lags_((lags + kernels.lanes - 1) / kernels.lanes * kernels.lanes),
          kernels_(kernels),
          pacer_(progress, static_cast<double>(events) * static_cast<double>(lags_)),
          sums_(lags_) {}

    /// Events rise; they are added in their order.
    void add(Events events) {
        const auto from = [events](std::size_t sample) {
            return asSize(std::lower_bound(events.begin(), events.end(), sample) - events.begin());
        };
        const std::size_t end = x_.size() + reach_ + 1;
        const std::size_t head = from(reach_);
        const std::size_t tail = std::max(head, from(end - std::min(end, lags_)));
        addOutside(events.first(head));
        addInside(x_.data(), reach_, events.subspan(head, tail - head));
        addOutside(events.subspan(tail));
    }
    const std::vector<double>& sums() const { return sums_; }

  private:
    /// Events with all their lags in x: those of event e are x[e - back], x[e - back + 1], ...
    void addInside(const double* x, std::size_t back, Events events) {
        // So few events at a time that what surrounds them stays near while all lags take it.
        constexpr std::size_t kTerms = std::size_t{1} << 16;
        const std::size_t piece = std::clamp<std::size_t>(kTerms / lags_, 1, 1024);
        for (std::size_t e = 0; e < events.size(); e += piece) {
            const std::size_t count = std::min(piece, events.size() - e);
            kernels_.eventSums(x, events.data() + e, count, back, lags_, sums_.data());
            pacer_.worked(count * lags_);
        }
    }
    /// Events near the ends: what surrounds them is copied, with zeros beyond the ends. Adding these changes no sum.
    void addOutside(Events events) {
        if (events.empty()) {
            return;
        }
        const std::size_t first = events.front();
        std::vector<double> around(events.back() - first + lags_);
        // around[i] is sample first - reach + i.
        const std::size_t skipped = reach_ > first ? reach_ - first : 0;
        const std::size_t start = first + skipped - reach_;
        const std::size_t count = std::min(around.size() - skipped, x_.size() - start);
        std::copy_n(x_.begin() + static_cast<std::ptrdiff_t>(start), count,
                    around.begin() + static_cast<std::ptrdiff_t>(skipped));
        addInside(around.data(), first, events);
    }

    std::span<const double> x_;
    std::size_t reach_;
    std::size_t lags_;  // rounded up to whole registers
    const KernelSet& kernels_;
    Pacer pacer_;
    std::vector<double> sums_;
};

}  // namespace

std::vector<double> averageAround(std::span<const std::size_t> events, std::span<const double> x, int lag,
                                  Progress& progress, const KernelSet& kernels) {
    if (lag < 0) {
        return {};
    }
    const auto wanted = asSize(lag);
    std::vector<double> pattern(2 * wanted + 1);
    if (events.empty() || x.empty()) {
        return pattern;
    }
    // No event has a neighbour farther away than the record is long.
    const std::size_t reach = std::min(wanted, x.size() - 1);
    const std::size_t lags = 2 * reach + 1;
    SumsAround around(x, reach, lags, events.size(), progress, kernels);
    around.add(events);
    const std::vector<double>& sums = around.sums();

    // Events e with 0 <= e + i - reach < N: as the lag rises, the first and the last of them move forward.
    std::size_t first = asSize(std::lower_bound(events.begin(), events.end(), reach) - events.begin());
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
