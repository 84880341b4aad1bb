#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorlan {

/// A record as plain columns of doubles, on its way from a text file into a probe.
struct RecordColumns {
    /// Velocities in cm/s, correlation of the beams in per cent, their signal-to-noise ratio in dB, angles in degrees.
    enum Column : std::size_t { U, V, W, Cor1, Cor2, Cor3, Snr1, Snr2, Snr3, Heading, Pitch, Roll, Pressure };
    static constexpr std::size_t kColumns = 13;
    static constexpr std::array<const char*, kColumns> kNames = {
        "u", "v", "w", "cor1", "cor2", "cor3", "snr1", "snr2", "snr3", "heading", "pitch", "roll", "pressure"};

    /// One value per sample, or empty for a column that the file does not have. A missing value is NaN.
    std::array<std::vector<double>, kColumns> values;
    /// One flag per sample: 1 when all three velocities are there.
    std::vector<std::uint8_t> valid;

    std::size_t sampleCount() const { return valid.size(); }
    bool has(Column column) const { return !values[column].empty(); }
};

}  // namespace vorlan
