#pragma once

#include <string>
#include <vector>

#include "analysis/Progress.h"
#include "analysis/SpectralSettings.h"
#include "model/SAdvProbe.h"

namespace vorlan {

/// Parameters of one spectral analysis, as the probe records them.
struct SpectralRun {
    int lags = 0;          ///< truncation point M
    int windowCode = 0;    ///< 0 rectangle, 1 Tukey, 2 Bartlett, 3 Parzen
    int unitSelector = 0;  ///< 0 Hz, 1 rad/s
};

inline constexpr const char* kTruncationTooLarge =
    "Truncation point too large ! This value exceed of half time series length.";

/// The run that the settings ask for on a series of samples.
SpectralRun spectralRunOf(const SpectralDialogValues& settings, int samples);
/// The run that the probe recorded.
SpectralRun spectralRunOf(const SAdvProbe& probe);

/// True when M does not exceed half the series, in integers.
bool truncationPointFits(int lags, int samples);

/// Forms the analysed series, then moments, correlation function (1e-5), spectrum (1e-7; negative stored integers
/// become positive) and structure function (1e-5) of U, V, W. Records the run in probe and series and sets the stage's
/// mark. Progress positions 5, 15, 25, 35 for U, 40..70 for V, 75..100 for W.
/// Returns why it is refused (the truncation point does not fit; only the analysed series are then new), empty when
/// done.
std::string analyseSpectra(SAdvProbe& probe, const SpectralRun& run, Progress& progress);

}  // namespace vorlan
