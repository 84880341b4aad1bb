#pragma once

#include <cstdint>
#include <string>

#include "model/GrowArray.h"

namespace vorlan {

/// Marks and counts.
class SIntArray : public GrowArray<std::int32_t> {
  public:
    const char* ClassName() const override { return "SIntArray"; }
    void Serialize(Archive& archive) override;
};

/// A plain sequence of doubles.
class SDArray : public GrowArray<double> {
  public:
    const char* ClassName() const override { return "SDArray"; }
    void Serialize(Archive& archive) override;
};

/// A table of double columns.
class SDMultiArray : public GrowArray<SDArray> {
  public:
    const char* ClassName() const override { return "SDMultiArray"; }
    void Serialize(Archive& archive) override;
};

/// A list of texts, held as raw bytes.
class StrArray : public GrowArray<std::string> {
  public:
    const char* ClassName() const override { return "StrArray"; }
    void Serialize(Archive& archive) override;
};

}  // namespace vorlan
