// What the dialogs edit: where it is kept, and why it is refused.
#include <gtest/gtest.h>

#include <cmath>

#include "analysis/EditingSettings.h"
#include "analysis/FilterSettings.h"
#include "analysis/HistogramSettings.h"
#include "analysis/QuadrantSettings.h"
#include "analysis/RotationSettings.h"
#include "analysis/SpectralSettings.h"
#include "analysis/StationaritySettings.h"
#include "model/SAdvProbe.h"

namespace vorlan::test {
namespace {

/// The settings of every dialog read from one workspace and stored in another.
WorkspaceSettings handedOver(const WorkspaceSettings& from) {
    WorkspaceSettings to;
    storeEditingSettings(editingSettingsOf(from), to);
    storeFilterSettings(filterSettingsOf(from), to);
    storeStationaritySettings(stationaritySettingsOf(from), to);
    storeHistogramSettings(histogramSettingsOf(from), to);
    storeSpectralSettings(spectralSettingsOf(from), to);
    storeQuadrantSettings(quadrantSettingsOf(from), to);
    return to;
}

TEST(Settings, TravelFromTheWorkspaceToTheDialogsAndBack) {
    WorkspaceSettings changed;
    changed.correlationTest = changed.snrTest = changed.spikeFilter = changed.velocityTest = 1;
    changed.correlationStatistic = changed.snrStatistic = changed.badSampleTreatment = 1;
    changed.averageCorrelation = 1.5;
    changed.minimumCorrelation = 2.5;
    changed.averageSnr = 3.5;
    changed.minimumSnr = 4.5;
    changed.accelerationThreshold = 5.5;
    changed.velocityThreshold = 6.5;
    changed.filterShape = changed.filterType = 3;
    changed.filterCutoff = 7.5;
    changed.filterHalfWidth = 8.5;
    changed.bandMode = 1;
    changed.bandCount = 9;
    changed.gradeCount = 11;
    changed.barWidth = 12;
    changed.normalApproximation = 0;
    changed.windowButton = 3;
    changed.lastWindowCode = 3;
    changed.unitButton = 0;
    changed.lastUnitIsRad = true;
    changed.truncationMode = 1;
    changed.lagPercent = 13;
    changed.lagCount = 14;
    changed.holeIncrement = 15.5;
    changed.holeMaximum = 16.5;
    changed.ejectionThreshold = 17.5;
    changed.sweepThreshold = 18.5;
    changed.maximumTimeLag = 19.5;
    changed.quadrantStress = 2;
    EXPECT_EQ(handedOver(changed), changed);
    for (const auto& [button, code] : {std::pair{0, 0}, {1, 2}, {2, 1}}) {
        changed.windowButton = button;
        EXPECT_EQ(handedOver(changed).lastWindowCode, code);
    }
}

TEST(Settings, OutOfRangeAreReadAsTheDefaults) {
    for (const std::int32_t wrong : {-1, 4, 9}) {
        WorkspaceSettings words;
        words.correlationStatistic = words.snrStatistic = words.badSampleTreatment = wrong;
        words.filterShape = words.filterType = words.bandMode = wrong;
        words.windowButton = words.unitButton = words.truncationMode = words.quadrantStress = wrong;
        WorkspaceSettings expected;
        expected.lastWindowCode = 1;  // that of the button
        EXPECT_EQ(handedOver(words), expected);
    }
    WorkspaceSettings words;
    words.lagPercent = 51;
    EXPECT_EQ(spectralSettingsOf(words).percent, 50);
    words.lagPercent = -1;
    EXPECT_EQ(spectralSettingsOf(words).percent, 0);
    words.unitButton = 2;
    words.quadrantStress = 3;
    EXPECT_EQ(spectralSettingsOf(words).unitButton, 1);
    EXPECT_EQ(quadrantSettingsOf(words).stressType, 1);
    EXPECT_TRUE(spectralSettingsOf(words).percentFlag);
}

FilterSettings filter(double halfWidth, double cutoff) {
    return {FilterShape::Rectangle, FilterType::LowPass, cutoff, halfWidth};
}

SpectralSettings truncation(int mode, int percent, int lags) {
    return {2, 1, mode, percent, lags, true};
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
    SpectralSettings settings = truncation(0, 50, 40);
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

TEST(Settings, FilterShapesAllowTheirTypes) {
    std::string allowed;
    for (const FilterShape shape :
         {FilterShape::Rectangle, FilterShape::Tukey, FilterShape::Gaussian, FilterShape::Bell}) {
        for (const FilterType type :
             {FilterType::LowPass, FilterType::HighPass, FilterType::BandPass, FilterType::BandCut}) {
            allowed += allowsType(shape, type) ? (type == defaultTypeOf(shape) ? 'X' : 'x') : '-';
        }
        allowed += ' ';
    }
    EXPECT_EQ(allowed, "Xx-- Xx-- X--- --Xx ");
}

TEST(Settings, RotationStartsAtTheProbeInMetres) {
    SAdvProbe probe;
    probe.samplingVolumeY = 250.0;
    EXPECT_EQ(rotationSettingsOf(probe).position, (std::array<double, 3>{0.0, 250.0 * 0.001, 0.0}));
    EXPECT_STREQ(coordinateSystemText(probe), "Probe( X, Y, Z ) ");
    probe.coordinateSystem = 2;
    EXPECT_STREQ(coordinateSystemText(probe), "Earth ( East, North, Up )");
}

}  // namespace
}  // namespace vorlan::test
