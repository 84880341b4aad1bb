#pragma once

#include <cstdint>
#include <vector>

#include "model/GrowArray.h"
#include "model/StoreValue.h"

namespace vorlan {

/// A sample column: 32-bit integers with one resolution ("scale") for all. The value of element i is integer * scale;
/// a stored value is value / scale truncated toward zero, and later steps read the truncated value back.
class SArray : public GrowArray<std::int32_t> {
  public:
    SArray() = default;
    explicit SArray(double scale) : scale_(scale) {}

    const char* ClassName() const override { return "SArray"; }
    /// Stored as scale, count, integers. Integers are kept exactly; loading appends to what the column holds.
    void Serialize(Archive& archive) override;

    double GetScale() const { return scale_; }
    void SetScale(double scale) { scale_ = scale; }

    double GetValue(int index) const { return GetAt(index) * scale_; }
    void AddValue(double value) { Add(truncateToInt32(value / scale_)); }
    void SetValue(int index, double value) { GrowTo(index) = truncateToInt32(value / scale_); }
    /// All values as doubles, in index order.
    std::vector<double> Values() const;
    /// Replaces the content by values, each stored as SetValue stores it; the scale stays.
    void StoreValues(std::span<const double> values);
    /// Size zero or more integers, all to be written by the caller through view().
    void ResizeForOverwrite(std::size_t size) { freshItems(size); }

    friend bool operator==(const SArray& a, const SArray& b) = default;

  private:
    double scale_ = 1.0;
};

/// A table: one column per component. In velocity tables column 0 is U, 1 is V, 2 is W.
class SMultiArray : public GrowArray<SArray> {
  public:
    const char* ClassName() const override { return "SMultiArray"; }
    void Serialize(Archive& archive) override;

    /// Empties the table and gives it columns empty columns of one scale.
    void Reshape(int columns, double scale);
    /// True when no column holds a value.
    bool HasNoValues() const;
};

/// A list of tables.
class SSuperArray : public GrowArray<SMultiArray> {
  public:
    const char* ClassName() const override { return "SSuperArray"; }
    void Serialize(Archive& archive) override;
};

}  // namespace vorlan
