// What the dialogs edit: where it is kept, and why it is refused.
#include <gtest/gtest.h>

#include <cmath>

#include "analysis/FilterSettings.h"
#include "analysis/RotationSettings.h"
#include "analysis/SpectralSettings.h"
#include "model/SAdvProbe.h"

namespace vorlan::test {
namespace {

template <class Settings>
void expectUsableCodes() {
    Settings damaged;
    Settings sound;
    Settings::Fields(damaged, [](const SettingField& field, auto& value) {
        if (!field.choices.empty()) {
            value = static_cast<std::remove_cvref_t<decltype(value)>>(-7);
        }
    });
    EXPECT_EQ(usable(damaged), Settings());
    Settings::Fields(sound, [](const SettingField& field, auto& value) {
        const int code = field.choices.empty() ? 77 : field.choices.back().code;
        value = static_cast<std::remove_cvref_t<decltype(value)>>(code);
    });
    EXPECT_EQ(usable(sound), sound);
}

TEST(Settings, CodesThatNoChoiceHasGiveWayToTheDefaults) {
    expectUsableCodes<EditingSettings>();
    expectUsableCodes<FilterSettings>();
    expectUsableCodes<StationaritySettings>();
    expectUsableCodes<HistogramSettings>();
    expectUsableCodes<SpectralSettings>();
    expectUsableCodes<QuadrantSettings>();
}

TEST(Settings, OfTheSpectraTravelWithTheCodesOfTheirButtons) {
    WorkspaceSettings workspace;
    for (const auto& [button, code] : {std::pair{0, 0}, {1, 2}, {2, 1}, {3, 3}}) {
        const SpectralSettings settings{button, button % 2, 1, 13, 14};
        storeSpectralSettings(settings, workspace);
        EXPECT_EQ(spectralSettingsOf(workspace), settings);
        EXPECT_EQ(workspace.lastWindowCode, code);
        EXPECT_EQ(workspace.lastUnitIsRad, button % 2 == 0);
    }
    for (const auto& [stored, shown] : {std::pair{51, 50}, {-1, 0}}) {
        workspace.spectral.percent = stored;
        EXPECT_EQ(spectralSettingsOf(workspace).percent, shown);
    }
}

TEST(Settings, TruncationPointIsAPercentageOrANumberOfLags) {
    SpectralDialogValues settings{{2, 1, 0, 50, 40}};
    EXPECT_EQ(truncationPoint(settings, 2501), 1250);
    settings.truncationMode = 1;
    settings.percentFlag = false;
    EXPECT_EQ(truncationPoint(settings, 2501), 40);
    // Reopened and accepted untouched: the lags are read as a percentage.
    settings.percentFlag = true;
    EXPECT_EQ(truncationPoint(settings, 2501), 1000);
    settings.lags = 10000;
    EXPECT_EQ(truncationPoint(settings, 2'000'000'000), 2'147'483'647);
}

}  // namespace
}  // namespace vorlan::test
