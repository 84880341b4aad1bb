#include "plot/TextMeasure.h"

namespace vorlan {

namespace {

bool continuesCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

}  // namespace

std::string shortened(const std::string& text, const FontDescription& font, int width, const TextMeasure& measure,
                      double share) {
    if (measure.width(text, font, share) <= width) {
        return text;
    }
    const std::string ellipsis = "\u2026";
    for (std::size_t length = text.size(); length-- > 0;) {
        if (continuesCharacter(text[length])) {
            continue;
        }
        std::string shorter = text.substr(0, length) + ellipsis;
        if (measure.width(shorter, font, share) <= width) {
            return shorter;
        }
    }
    return {};
}

}  // namespace vorlan
