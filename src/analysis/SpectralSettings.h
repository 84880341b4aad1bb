#pragma once

#include "model/WorkspaceSettings.h"

namespace vorlan {

/// What the dialog "Spectral Analysis | Parameters" hands over.
struct SpectralDialogValues : SpectralSettings {
    SpectralDialogValues(const SpectralSettings& settings = {}) : SpectralSettings(settings) {}

    /// Decides how the command reads its value. It is on at every opening, whatever mode is shown, and only a click
    /// on a mode button sets it: a reopened lags mode accepted untouched uses its number of lags as a percentage.
    bool percentFlag = true;
};

/// The stored settings as the dialog can show them.
SpectralSettings spectralSettingsOf(const WorkspaceSettings& settings);
/// Stores the settings and what the command remembers of its last run.
void storeSpectralSettings(const SpectralSettings& dialog, WorkspaceSettings& settings);

int windowCodeOfButton(int windowButton);
int unitSelectorOfButton(int unitButton);

/// Truncation point M for a series of samples: (samples * value) / 100 in integers, or the number of lags.
int truncationPoint(const SpectralDialogValues& settings, int samples);

}  // namespace vorlan
