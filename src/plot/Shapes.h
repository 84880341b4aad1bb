#pragma once

#include <algorithm>
#include <string>

#include "model/FontDescription.h"

namespace vorlan {

/// Pixel positions; y grows downward.
struct Spot {
    int x = 0;
    int y = 0;
    friend bool operator==(const Spot&, const Spot&) = default;
};

struct Line {
    Spot from;
    Spot to;
    friend bool operator==(const Line&, const Line&) = default;
};

/// Left and top edges belong to the box, right and bottom edges do not.
struct Box {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool overlaps(const Box& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    bool encloses(const Box& other) const {
        return left <= other.left && other.right <= right && top <= other.top && other.bottom <= bottom;
    }
    Box common(const Box& other) const {
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                std::min(bottom, other.bottom)};
    }
    Box moved(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    friend bool operator==(const Box&, const Box&) = default;
};

/// Text in its box. Upward text runs from the bottom of the box to its top.
struct PlacedText {
    std::string text;
    Box box;
    FontDescription font;
    double share = 1.0;  ///< size of the letters relative to the font's own
    bool upward = false;
};

}  // namespace vorlan
