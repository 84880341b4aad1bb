#pragma once

#include "app/CVorl_ADVDoc.h"

namespace vorlan {

/// A short record with a harmonic and noise on every component.
inline SimulationParameters sampleParameters(double length = 40.0) {
    SimulationParameters p;
    p.length = length;
    p.whiteNoise = true;
    p.compass = true;
    for (SimulationParameters::Component& c : p.components) {
        c.noiseVariance = 2.0;
        c.harmonics[0] = {3.0, 4.0, 30.0};
    }
    return p;
}

inline void simulateAndSelect(CVorl_ADVDoc& document, double length = 40.0, std::uint64_t seed = 7) {
    document.SimulateTimeSeries(sampleParameters(length), seed);
    document.SelectProbe(0);
}

/// The dialog's values for a number of lags, as after a click on the lags button.
inline SpectralDialogValues lagsOf(int lags) {
    SpectralDialogValues s;
    s.truncationMode = 1;
    s.lags = lags;
    s.percentFlag = false;
    return s;
}

}  // namespace vorlan
