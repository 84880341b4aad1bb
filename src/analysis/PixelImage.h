#pragma once

#include <cstddef>
#include <cstdint>

namespace vorlan {

/// The pixels of a picture that somebody else owns: 32-bit colours, rows from top to bottom, stride pixels apart.
class PixelImage {
  public:
    using Colour = std::uint32_t;

    PixelImage(Colour* pixels, int width, int height, std::ptrdiff_t stride)
        : pixels_(pixels), width_(width), height_(height), stride_(stride) {}

    bool contains(int px, int py) const { return px >= 0 && px < width_ && py >= 0 && py < height_; }
    /// Outside the picture every pixel is 0 and none can be set.
    Colour get(int px, int py) const { return contains(px, py) ? pixels_[py * stride_ + px] : 0; }
    void set(int px, int py, Colour colour) {
        if (contains(px, py)) {
            pixels_[py * stride_ + px] = colour;
        }
    }

  private:
    Colour* pixels_;
    int width_;
    int height_;
    std::ptrdiff_t stride_;
};

}  // namespace vorlan
