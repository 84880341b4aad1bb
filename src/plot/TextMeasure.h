#pragma once

#include <string>
#include <vector>

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

/// text broken at blanks into lines that are at most width pixels wide, at most mostLines of them; what does not fit is
/// shortened. Not a line for a text of blanks.
std::vector<std::string> wrapped(const std::string& text, const FontDescription& font, int width,
                                 const TextMeasure& measure, std::size_t mostLines);

}  // namespace vorlan
