#pragma once

#include "model/Refusal.h"
#include "model/WorkspaceSettings.h"

namespace vorlan {

/// What the dialog "Spectral Analysis | Parameters" edits.
struct SpectralSettings {
    int windowButton = 2;    ///< 0 rectangle, 1 Bartlett, 2 Tukey, 3 Parzen
    int unitButton = 1;      ///< 0 rad/s, 1 Hz
    int truncationMode = 0;  ///< 0 percent of the series length, 1 number of lags
    int percent = 10;
    int lags = 100;
    /// Decides how the command reads its value. It is on at every opening, whatever mode is shown, and only a click
    /// on a mode button sets it: a reopened lags mode accepted untouched uses its number of lags as a percentage.
    bool percentFlag = true;
};

SpectralSettings spectralSettingsOf(const WorkspaceSettings& settings);
void storeSpectralSettings(const SpectralSettings& dialog, WorkspaceSettings& settings);

/// Why the dialog may not be accepted; empty when it may.
Refusal refusalOf(const SpectralSettings& settings);

int windowCodeOfButton(int windowButton);
int unitSelectorOfButton(int unitButton);

/// Truncation point M for a series of samples: (samples * value) / 100 in integers, or the number of lags.
int truncationPoint(const SpectralSettings& settings, int samples);

}  // namespace vorlan
