#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace vorlan {

/// Decisions that the end of an input makes. One that is used up decides for 0.
class Choices {
  public:
    Choices(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes, size) {}

    bool empty() { return bytes_.remaining_bytes() == 0; }
    /// 0..count - 1.
    int below(int count) { return bytes_.ConsumeIntegralInRange(0, count - 1); }
    bool yes() { return below(2) == 1; }
    /// What somebody would type, mostly.
    std::int32_t integer() {
        return below(8) == 0 ? bytes_.ConsumeIntegral<std::int32_t>() : bytes_.ConsumeIntegralInRange(-2, 100);
    }
    double real() {
        constexpr double kUnusual[] = {0.0, -1.0,   1e-300, 1e300, std::numeric_limits<double>::infinity(),
                                       NAN, 5e-324, 2.1e9,  1e6,   -1e-7};
        switch (below(4)) {
            case 0:
                return kUnusual[below(static_cast<int>(std::size(kUnusual)))];
            case 1: {
                const auto word = bytes_.ConsumeIntegral<std::uint64_t>();
                double value = 0.0;
                std::memcpy(&value, &word, sizeof value);
                return value;
            }
            default:
                return 0.01 * bytes_.ConsumeIntegralInRange(-100, 3000);
        }
    }
    template <class Code>
    Code code(int count) {
        return static_cast<Code>(below(8) == 0 ? integer() : below(count));
    }

  private:
    FuzzedDataProvider bytes_;
};

}  // namespace vorlan
