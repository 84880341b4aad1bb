#include "plot/ValueBlocks.h"

#include <algorithm>
#include <limits>

namespace vorlan {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Widens the interval; an empty part makes the whole empty.
void widen(std::optional<DataInterval>& whole, const std::optional<DataInterval>& part) {
    if (!whole || !part) {
        whole.reset();
        return;
    }
    whole->lowest = std::min(whole->lowest, part->lowest);
    whole->highest = std::max(whole->highest, part->highest);
}

}  // namespace

std::optional<DataInterval> finiteExtremes(std::span<const double> values) {
    if (values.empty()) {
        return std::nullopt;
    }
    // Several at once, so that one comparison need not wait for the one before.
    constexpr std::size_t kLanes = 8;
    double lowest[kLanes];
    double highest[kLanes];
    double check[kLanes] = {};  // stays 0 while every value is finite
    std::fill_n(lowest, kLanes, values[0]);
    std::fill_n(highest, kLanes, values[0]);
    std::size_t i = 0;
    for (; i + kLanes <= values.size(); i += kLanes) {
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            const double v = values[i + lane];
            lowest[lane] = v < lowest[lane] ? v : lowest[lane];
            highest[lane] = v > highest[lane] ? v : highest[lane];
            check[lane] += v * 0.0;
        }
    }
    for (; i < values.size(); ++i) {
        lowest[0] = std::min(lowest[0], values[i]);
        highest[0] = std::max(highest[0], values[i]);
        check[0] += values[i] * 0.0;
    }
    if (std::any_of(check, check + kLanes, [](double c) { return c != 0.0; })) {
        return std::nullopt;
    }
    return DataInterval{*std::min_element(lowest, lowest + kLanes), *std::max_element(highest, highest + kLanes)};
}

ValueBlocks::ValueBlocks(std::span<const double> values) : values_(values.size()) {
    blocks_.reserve(values.size() / kSize);
    for (std::size_t i = 0; i + kSize <= values.size(); i += kSize) {
        blocks_.push_back(finiteExtremes(values.subspan(i, kSize)).value_or(DataInterval{kNaN, kNaN}));
    }
    if (!blocks_.empty()) {
        whole_ = extremesOf(0);
        for (std::size_t block = 1; block < blocks_.size(); ++block) {
            widen(whole_, extremesOf(block));
        }
    }
}

std::optional<DataInterval> ValueBlocks::extremesOf(std::size_t block) const {
    const DataInterval& extremes = blocks_[block];
    return extremes.lowest <= extremes.highest ? std::optional(extremes) : std::nullopt;
}

std::optional<DataInterval> ValueBlocks::extremesBetween(std::span<const double> values, std::size_t from,
                                                         std::size_t to) const {
    const std::size_t first = (from + kSize - 1) / kSize;
    const std::size_t last = to / kSize;
    if (first >= last) {
        return finiteExtremes(values.subspan(from, to - from));
    }
    std::optional<DataInterval> whole = extremesOf(first);
    for (std::size_t block = first + 1; block < last; ++block) {
        widen(whole, extremesOf(block));
    }
    if (from < first * kSize) {
        widen(whole, finiteExtremes(values.subspan(from, first * kSize - from)));
    }
    if (last * kSize < to) {
        widen(whole, finiteExtremes(values.subspan(last * kSize, to - last * kSize)));
    }
    return whole;
}

}  // namespace vorlan
