#include "analysis/SpectralScale.h"

namespace vorlan {

namespace {
// The frequency axis and the spectrum integral use this value, unlike the transform itself.
constexpr double kPiOfFrequencyStep = 3.14;
}  // namespace

double frequencyStep(int length, double samplingInterval, int unitSelector) {
    switch (unitSelector) {
        case 0:
            return 1.0 / (2.0 * length * samplingInterval);
        case 1:
            return kPiOfFrequencyStep / (length * samplingInterval);
        default:
            return 0.0;
    }
}

}  // namespace vorlan
