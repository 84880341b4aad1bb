#pragma once

#include <algorithm>

#include "plot/TextMeasure.h"

namespace vorlan {

/// Every character counts the same, so that places can be worked out by hand.
class FixedMeasure : public TextMeasure {
  public:
    explicit FixedMeasure(int characterWidth = 6, int lineHeight = 12)
        : characterWidth_(characterWidth), lineHeight_(lineHeight) {}
    int width(const std::string& text, const FontDescription&, double share) const override {
        const auto starts = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
        const auto characters = std::count_if(text.begin(), text.end(), starts);
        return static_cast<int>(static_cast<double>(characters) * characterWidth_ * share);
    }
    int height(const FontDescription&, double share) const override { return static_cast<int>(lineHeight_ * share); }
    int ascent(const FontDescription&, double share) const override {
        return static_cast<int>(lineHeight_ * share * 0.75);
    }

  private:
    int characterWidth_;
    int lineHeight_;
};

}  // namespace vorlan
