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

FilterSettings filter(double halfWidth, double cutoff) {
    return {FilterShape::Rectangle, FilterType::LowPass, cutoff, halfWidth};
}

SpectralSettings truncation(int mode, int percent, int lags) {
    return {2, 1, mode, percent, lags};
}

TEST(Settings, AreRefusedInTheOrderOfTheirFields) {
    const struct {
        Refusal said;
        const char* text;
        const char* field;
    } rows[] = {
        {refusalOf(filter(0.0, 0.0)), "The filter width should be grater than 0!", "half_width"},
        {refusalOf(filter(1.0, 0.0)), "The cutoff frequency should be grater than 0!", "cutoff"},
        {refusalOf(filter(-1.0, -1.0)), "", ""},
        {refusalOf(StationaritySettings{BandMode::Fixed, 1}), "Band number should be larger than 1!", "bands"},
        {refusalOf(StationaritySettings{BandMode::Fixed, 2}), "", ""},
        {refusalOf(HistogramSettings{1, 90, true}), "Number of grades should be larger than 1!", "grades"},
        {refusalOf(HistogramSettings{2, 90, true}), "", ""},
        {refusalOf(truncation(0, 0, 2)), "The truncation point should be grater than 0!", "percent"},
        {refusalOf(truncation(0, 1, 2)), "", ""},
        {refusalOf(truncation(1, 0, 2)), "The truncation point should be grater than 2!", "lags"},
        {refusalOf(truncation(1, 0, 3)), "", ""},
        {refusalOf(QuadrantSettings{0.0, 1.9, -0.1, -0.1, 1.9, 1}), "The ejection threshold should be grater than 0!",
         "ejection"},
        {refusalOf(QuadrantSettings{0.0, 1.9, 0.0, -0.1, 1.9, 1}), "The maximum size should be grater than 2!",
         "maximum"},
        {refusalOf(QuadrantSettings{0.0, 2.0, 0.0, -0.1, 1.9, 1}), "The maximum lag should be grater than 2!", "lag"},
        {refusalOf(QuadrantSettings{0.0, 2.0, 0.0, -0.1, 2.0, 1}), "The sweep threshold should be grater than 0!",
         "sweep"},
        {refusalOf(QuadrantSettings{0.0, 2.0, 0.0, 0.0, 2.0, 1}), "The size increment should be grater than 0!",
         "increment"},
        {refusalOf(QuadrantSettings{-0.1, 2.0, 0.0, 0.0, 2.0, 1}), "", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.said.text, row.text);
        EXPECT_EQ(row.said.field, row.field);
    }
}

TEST(Settings, TruncationPointIsAPercentageOrANumberOfLags) {
    SpectralDialogValues settings = truncation(0, 50, 40);
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
