#include "model/FontDescription.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace vorlan {

namespace {
constexpr std::size_t kFaceOffset = 28;
constexpr std::size_t kFaceLength = 32;
constexpr std::size_t kPitchAndFamilyOffset = 27;
// A cell is higher than its letters by the internal leading of the face.
constexpr double kCellPerLetter = 1.15;
constexpr int kDefaultPixelSize = 12;
}  // namespace

FontDescription::FontDescription() : FontDescription("ARIAL", 14, 400) {}

FontDescription::FontDescription(const std::string& face, std::int32_t height, std::int32_t weight, bool italic) {
    setHeight(height);
    setWeight(weight);
    setItalic(italic);
    bytes_[kPitchAndFamilyOffset] = std::byte{0x22};
    setFace(face);
}

std::string FontDescription::face() const {
    const char* first = reinterpret_cast<const char*>(bytes_.data() + kFaceOffset);
    return std::string(first, strnlen(first, kFaceLength));
}

void FontDescription::setFace(const std::string& face) {
    std::fill(bytes_.begin() + kFaceOffset, bytes_.end(), std::byte{0});
    std::memcpy(bytes_.data() + kFaceOffset, face.data(), std::min(face.size(), kFaceLength - 1));
}

int FontDescription::pixelSize() const {
    const std::int32_t h = height();
    if (h > 0) {
        return std::max(1, static_cast<int>(std::lround(h / kCellPerLetter)));
    }
    return h < 0 && h > -10000 ? -h : kDefaultPixelSize;
}

std::int32_t FontDescription::integerAt(std::size_t offset) const {
    std::int32_t value = 0;
    std::memcpy(&value, bytes_.data() + offset, sizeof value);
    return value;
}

void FontDescription::setIntegerAt(std::size_t offset, std::int32_t value) {
    std::memcpy(bytes_.data() + offset, &value, sizeof value);
}

}  // namespace vorlan
