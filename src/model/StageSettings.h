#pragma once

#include "model/Refusal.h"
#include "model/SettingField.h"

// The parameters that the stage dialogs edit, with the defaults of a new workspace. Codes and flags take 32 bits and
// hold whatever a file held; usable() makes the codes safe.

namespace vorlan {

/// Which of a sample's three beam scores is compared with the threshold.
enum class ScoreStatistic : std::int32_t { Average = 0, Minimum = 1 };

enum class BadSampleTreatment : std::int32_t { Interpolate = 0, Remove = 1 };

enum class FilterShape : std::int32_t { Rectangle = 0, Tukey = 1, Gaussian = 2, Bell = 3 };

enum class FilterType : std::int32_t { LowPass = 0, HighPass = 1, BandPass = 2, BandCut = 3 };

enum class BandMode : std::int32_t { Fixed = 0, Cumulative = 1 };

/// One test of the beam scores: the threshold is that of the chosen statistic.
struct ScoreTest {
    StoredFlag on = false;
    ScoreStatistic statistic = ScoreStatistic::Average;
    double averageThreshold = 70.0;
    double minimumThreshold = 70.0;

    double threshold() const { return statistic == ScoreStatistic::Minimum ? minimumThreshold : averageThreshold; }
    friend bool operator==(const ScoreTest&, const ScoreTest&) = default;
};

/// What the dialog "Editing Time Series" edits. Every number is accepted.
struct EditingSettings {
    ScoreTest correlation{false, ScoreStatistic::Average, 70.0, 70.0};   ///< per cent
    ScoreTest signalToNoise{false, ScoreStatistic::Average, 10.0, 5.0};  ///< dB
    StoredFlag spikeFilter = false;
    double accelerationThreshold = 1.0;  ///< g
    StoredFlag velocityTest = false;
    double velocityThreshold = 3.0;  ///< standard deviations
    BadSampleTreatment treatment = BadSampleTreatment::Interpolate;

    /// A recipe turns a test on by giving its statistic or its threshold.
    template <class Self, class Visit>
    static void Fields(Self& self, Visit visit) {
        for (auto* score : {&self.correlation, &self.signalToNoise}) {
            visit(SettingField{score == &self.correlation ? "correlation" : "snr",
                               {},
                               {{"average", 0}, {"minimum", 1}},
                               "What is compared with the threshold: the average of the three beams or the lowest one"},
                  score->statistic);
        }
        visit(SettingField{"spike_threshold", {}, {}, "A sample whose acceleration is larger is a spike", "g"},
              self.accelerationThreshold);
        visit(
            SettingField{
                "velocity_threshold", {}, {}, "A velocity further from its mean is bad", "standard deviations"},
            self.velocityThreshold);
        visit(
            SettingField{
                "treatment",
                {},
                {{"interpolate", 0}, {"remove", 1}},
                "What becomes of bad samples: repaired from their neighbours, or left out of all that follows"},
            self.treatment);
    }
    friend bool operator==(const EditingSettings&, const EditingSettings&) = default;
};

/// What the dialog "Digital Filtration | Parameters" edits.
struct FilterSettings {
    FilterShape shape = FilterShape::Tukey;
    FilterType type = FilterType::LowPass;
    double cutoff = 10.0;     ///< Hz; only the Gaussian shape uses it
    double halfWidth = 10.0;  ///< s; the Gaussian shape only checks it

    template <class Self, class Visit>
    static void Fields(Self& self, Visit visit) {
        visit(SettingField{"shape",
                           {},
                           {{"rectangle", 0}, {"tukey", 1}, {"gaussian", 2}, {"bell", 3}},
                           "Weights of the neighbours of a sample"},
              self.shape);
        visit(SettingField{"type",
                           {},
                           {{"low-pass", 0}, {"high-pass", 1}, {"band-pass", 2}, {"band-cut", 3}},
                           "Frequencies that are kept; which types there are depends on the shape"},
              self.type);
        visit(SettingField{"half_width",
                           {},
                           {},
                           "Reach of the filter to either side: longer than a sample, shorter than a quarter of the "
                           "record",
                           "s"},
              self.halfWidth);
        visit(SettingField{"cutoff", {}, {}, "Frequency above which the Gaussian shape removes, not 0", "Hz"},
              self.cutoff);
    }
    friend bool operator==(const FilterSettings&, const FilterSettings&) = default;
};

/// What the dialog "Stationarity Analysis | Parameters" edits.
struct StationaritySettings {
    BandMode mode = BandMode::Fixed;
    std::int32_t bands = 10;

    template <class Self, class Visit>
    static void Fields(Self& self, Visit visit) {
        visit(SettingField{"mode",
                           {},
                           {{"fixed", 0}, {"cumulative", 1}},
                           "Bands of one width side by side, or each from the start of the record"},
              self.mode);
        visit(SettingField{"bands", {}, {}, "Bands that the record is divided into, at least 2"}, self.bands);
    }
    friend bool operator==(const StationaritySettings&, const StationaritySettings&) = default;
};

/// What the dialog "Univariate Distributions | Histogram Parameters" edits.
struct HistogramSettings {
    std::int32_t grades = 20;
    std::int32_t barWidth = 90;  ///< per cent of the grade width
    StoredFlag normalApproximation = true;

    template <class Self, class Visit>
    static void Fields(Self& self, Visit visit) {
        visit(SettingField{"grades", {}, {}, "Classes between the smallest and the largest velocity, at least 2"},
              self.grades);
        visit(SettingField{"bar_width", {0, 100}, {}, "Width of the drawn bars, of the width of a class", "%"},
              self.barWidth);
        visit(SettingField{"normal", {}, {}, "Draws the normal distribution of the same mean and variance, too"},
              self.normalApproximation);
    }
    friend bool operator==(const HistogramSettings&, const HistogramSettings&) = default;
};

/// What the dialog "Spectral Analysis | Parameters" edits.
struct SpectralSettings {
    static constexpr std::int32_t kPercentMode = 0;
    static constexpr std::int32_t kLagsMode = 1;

    std::int32_t windowButton = 2;  ///< 0 rectangle, 1 Bartlett, 2 Tukey, 3 Parzen
    std::int32_t unitButton = 1;    ///< 0 rad/s, 1 Hz
    std::int32_t truncationMode = kPercentMode;
    std::int32_t percent = 10;  ///< of the series length
    std::int32_t lags = 100;

    /// A recipe chooses the mode by giving its number.
    template <class Self, class Visit>
    static void Fields(Self& self, Visit visit) {
        visit(SettingField{"window",
                           {},
                           {{"rectangle", 0}, {"bartlett", 1}, {"tukey", 2}, {"parzen", 3}},
                           "Weights of the correlation function before it is transformed"},
              self.windowButton);
        visit(SettingField{"unit", {}, {{"hz", 1}, {"rad/s", 0}}, "Unit of the frequencies of the spectra"},
              self.unitButton);
        visit(SettingField{"",
                           {},
                           {{"percent", kPercentMode}, {"lags", kLagsMode}},
                           "How the largest lag of the correlation functions is given"},
              self.truncationMode);
        visit(SettingField{"percent", {0, 50}, {}, "Largest lag, of the length of the record, not 0", "%"},
              self.percent);
        visit(SettingField{"lags", {}, {}, "Number of lags: at least 3, at most half of the samples"}, self.lags);
    }
    friend bool operator==(const SpectralSettings&, const SpectralSettings&) = default;
};

/// What the dialog "Conditional Quadrants Analysis and Averaging" edits.
struct QuadrantSettings {
    double increment = 0.2;          ///< step between hole sizes, in mean stresses
    double maximum = 20.0;           ///< upper end of the hole sizes, in mean stresses
    double ejectionThreshold = 1.0;  ///< in mean stresses
    double sweepThreshold = 2.0;     ///< in mean stresses
    double maximumLag = 10.0;        ///< reach of the averaged patterns to either side, s
    std::int32_t stressType = 1;     ///< 0 u'v', 1 u'w', 2 v'w'

    template <class Self, class Visit>
    static void Fields(Self& self, Visit visit) {
        visit(SettingField{"increment", {}, {}, "Step from one hole size to the next, above 0", "mean stresses"},
              self.increment);
        visit(SettingField{"maximum", {}, {}, "Largest hole size, at least 2", "mean stresses"}, self.maximum);
        visit(SettingField{"ejection", {}, {}, "Stresses above it are ejections, at least 0", "mean stresses"},
              self.ejectionThreshold);
        visit(SettingField{"sweep", {}, {}, "Stresses above it are sweeps, at least 0", "mean stresses"},
              self.sweepThreshold);
        visit(SettingField{"lag", {}, {}, "Reach of the averaged patterns before and after an event, at least 2", "s"},
              self.maximumLag);
        visit(
            SettingField{
                "stress", {}, {{"uv", 0}, {"uw", 1}, {"vw", 2}}, "The pair of velocities whose stress is analysed"},
            self.stressType);
    }
    friend bool operator==(const QuadrantSettings&, const QuadrantSettings&) = default;
};

/// What the dialog "Vectors of Mean Velocities | View Parameters" edits.
struct VectorSettings {
    std::int32_t plane = 2;    ///< 0 XY, 1 XZ, 2 YZ
    std::int32_t pixels = 50;  ///< an arrow of speed is this long
    double speed = 10.0;       ///< cm/s
    double smaller = 5.0;      ///< arrows of minima and maxima are this much smaller

    template <class Self, class Visit>
    static void Fields(Self& self, Visit visit) {
        constexpr double kInfinity = std::numeric_limits<double>::infinity();
        constexpr Range kAboveZero{std::numeric_limits<double>::denorm_min(), kInfinity};
        visit(SettingField{"plane", {}, {{"xy", 0}, {"xz", 1}, {"yz", 2}}, "The plane that the plans show"},
              self.plane);
        visit(SettingField{"pixels", {1, kInfinity}, {}, "Length of an arrow of the given velocity", "pixels"},
              self.pixels);
        visit(SettingField{"speed", kAboveZero, {}, "Velocity whose arrow has the given length", "cm/s"}, self.speed);
        visit(SettingField{"smaller", kAboveZero, {}, "Arrows of minima and maxima are so many times smaller"},
              self.smaller);
    }
    friend bool operator==(const VectorSettings&, const VectorSettings&) = default;
};

enum class MeanVelocityMode : std::int32_t { Averaged = 0, User = 1 };

/// The convective velocity of Taylor's hypothesis, which the dialog "Mean Velocity | Parameters" edits.
struct MeanVelocitySettings {
    MeanVelocityMode mode = MeanVelocityMode::Averaged;
    double value = 10.0;  ///< cm/s; the user's, whose range counts in the user's mode only

    template <class Self, class Visit>
    static void Fields(Self& self, Visit visit) {
        visit(SettingField{"mode", {}, {{"averaged", 0}, {"user", 1}}}, self.mode);
        visit(SettingField{"value", {0.005, 1000.0}}, self.value);
    }
    friend bool operator==(const MeanVelocitySettings&, const MeanVelocitySettings&) = default;
};

// Why a dialog may not be accepted; empty when it may.

/// Only values equal to 0 are refused.
Refusal refusalOf(const FilterSettings& settings);
Refusal refusalOf(const StationaritySettings& settings);
Refusal refusalOf(const HistogramSettings& settings);
Refusal refusalOf(const SpectralSettings& settings);
/// The texts promise more than the checks: thresholds of 0, a maximum of 2, a lag of 2 and a negative increment pass.
Refusal refusalOf(const QuadrantSettings& settings);
Refusal refusalOf(const VectorSettings& settings);

}  // namespace vorlan
