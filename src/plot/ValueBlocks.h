#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "plot/AxisLimits.h"

namespace vorlan {

/// Lowest and highest of the values; empty when there is none, or one that is not finite.
std::optional<DataInterval> finiteExtremes(std::span<const double> values);

/// Extremes of every 64 neighbouring values of a long series. They are found once; extents of the data and of pixel
/// columns then look at few values, at every repaint.
class ValueBlocks {
  public:
    static constexpr std::size_t kSize = 64;

    ValueBlocks() = default;
    explicit ValueBlocks(std::span<const double> values);

    /// True when the blocks were made of so many values. Values left over behind the last block belong to none.
    bool cover(std::size_t values) const { return values >= kSize && values == values_; }
    std::size_t count() const { return blocks_.size(); }
    /// Values kSize * block .. kSize * (block + 1) - 1; empty when one of them is not finite.
    std::optional<DataInterval> extremesOf(std::size_t block) const;

    /// Extremes of all blocks; empty without one, or when a value in them is not finite.
    const std::optional<DataInterval>& extremes() const { return whole_; }

    /// As finiteExtremes(values[from, to)) for the values that the blocks were made of.
    std::optional<DataInterval> extremesBetween(std::span<const double> values, std::size_t from, std::size_t to) const;

  private:
    std::size_t values_ = 0;
    std::vector<DataInterval> blocks_;
    std::optional<DataInterval> whole_;
};

}  // namespace vorlan
