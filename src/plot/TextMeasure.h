#pragma once

#include <string>

#include "model/FontDescription.h"

namespace vorlan {

/// Sizes of texts in pixels. share is the size of the letters relative to the font's own (raised exponents).
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;
    virtual int width(const std::string& text, const FontDescription& font, double share = 1.0) const = 0;
    virtual int height(const FontDescription& font, double share = 1.0) const = 0;
    /// From the top of the text to its base line.
    virtual int ascent(const FontDescription& font, double share = 1.0) const = 0;

  protected:
    TextMeasure() = default;
    TextMeasure(const TextMeasure&) = default;
    TextMeasure& operator=(const TextMeasure&) = default;
};

/// text, shortened with an ellipsis until it is at most width pixels wide; empty when not even that fits.
std::string shortened(const std::string& text, const FontDescription& font, int width, const TextMeasure& measure,
                      double share = 1.0);

}  // namespace vorlan
