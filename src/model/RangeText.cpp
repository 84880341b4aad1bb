#include "model/RangeText.h"

#include <cmath>

#include "model/Text.h"

namespace vorlan {

std::string rangeText(const Range& range) {
    constexpr double kUnbounded = std::numeric_limits<double>::infinity();
    if (range.maximum >= kUnbounded && range.minimum > -kUnbounded) {
        const double rounded = std::floor(range.minimum);
        return range.minimum > rounded ? formatted("above %g", rounded) : formatted("at least %g", range.minimum);
    }
    return formatted("between %g and %g", range.minimum, range.maximum);
}

}  // namespace vorlan
