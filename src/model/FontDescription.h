#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace vorlan {

/// A font as workspaces hold it: 60 bytes that are kept verbatim until the user picks another font.
///
/// Layout: i32 height, width, escapement, orientation, weight; u8 italic, underline, strike-out, character set,
/// output precision, clipping precision, quality, pitch and family; 32 bytes of face name, zero padded.
class FontDescription {
  public:
    static constexpr std::size_t kSize = 60;

    /// ARIAL, height 14, weight 400, pitch and family 0x22.
    FontDescription();
    FontDescription(const std::string& face, std::int32_t height, std::int32_t weight, bool italic = false);

    std::int32_t height() const { return integerAt(0); }
    std::int32_t weight() const { return integerAt(16); }
    bool italic() const { return byteAt(20) != 0; }
    bool underline() const { return byteAt(21) != 0; }
    bool strikeOut() const { return byteAt(22) != 0; }
    /// At most 32 characters, up to the first zero.
    std::string face() const;

    void setHeight(std::int32_t height) { setIntegerAt(0, height); }
    void setWeight(std::int32_t weight) { setIntegerAt(16, weight); }
    void setItalic(bool on) { setByteAt(20, on); }
    void setUnderline(bool on) { setByteAt(21, on); }
    void setStrikeOut(bool on) { setByteAt(22, on); }
    void setFace(const std::string& face);

    /// Size of the letters in pixels: a positive height is that of the cell, a negative one that of the letters.
    int pixelSize() const;

    std::array<std::byte, kSize>& bytes() { return bytes_; }
    const std::array<std::byte, kSize>& bytes() const { return bytes_; }

    friend bool operator==(const FontDescription&, const FontDescription&) = default;

  private:
    std::int32_t integerAt(std::size_t offset) const;
    void setIntegerAt(std::size_t offset, std::int32_t value);
    std::uint8_t byteAt(std::size_t offset) const { return static_cast<std::uint8_t>(bytes_[offset]); }
    void setByteAt(std::size_t offset, bool on) { bytes_[offset] = on ? std::byte{1} : std::byte{0}; }

    std::array<std::byte, kSize> bytes_{};
};

}  // namespace vorlan
