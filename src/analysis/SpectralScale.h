#pragma once

namespace vorlan {

/// Step between the frequencies of a spectrum of length points: 1 / (2 L dt) in Hz (unit 0), 3.14 / (L dt) in rad/s
/// (unit 1, the constant is 3.14), 0 for any other unit.
double frequencyStep(int length, double samplingInterval, int unitSelector);

}  // namespace vorlan
