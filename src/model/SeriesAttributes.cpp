#include "model/SeriesAttributes.h"

#include <algorithm>
#include <array>

#include "model/Index.h"

namespace vorlan {

std::int32_t seriesColour(int index) {
    constexpr auto rgb = [](int r, int g, int b) { return r + 256 * g + 65536 * b; };
    constexpr std::array<std::int32_t, 5> colours = {rgb(0, 0, 160), rgb(200, 40, 30), rgb(60, 180, 110),
                                                     rgb(160, 0, 160), rgb(96, 96, 96)};
    return colours[asSize(std::clamp(index, 0, asInt(colours.size()) - 1))];
}

}  // namespace vorlan
