#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "model/FrameAttributes.h"
#include "model/Index.h"
#include "model/PlainArrays.h"
#include "model/SArray.h"
#include "model/STabsArray.h"
#include "model/STimeSeries.h"
#include "model/Stages.h"
#include "model/Units.h"

namespace vorlan {

/// One probe (burst): its sampled record, the working copy that pre-processing changes, and the results of every
/// stage. Velocities in cm/s, times in s, angles in degrees, positions in mm.
///
/// A plain value: copies are independent (and cheap, columns are shared until one is written), so a command works on a
/// copy and writes it back only when it succeeded.
class SAdvProbe : public SObject {
  public:
    static constexpr int kComponents = 3;

    SAdvProbe();

    const char* ClassName() const override { return "SAdvProbe"; }
    void Serialize(Archive& archive) override;

    /// True when any stage after pre-processing has results.
    bool IsChanged() const;
    bool IsDone(DoneMark mark) const { return stageDone[asSize(mark)] != 0; }
    void SetDone(DoneMark mark, bool done = true) {
        stageDone[asSize(mark)] = done ? 1U : 0U;
        stageIsOld[asSize(mark)] = false;
    }
    /// True when the working record has changed since the stage was run or repeated.
    bool IsOld(DoneMark mark) const { return stageIsOld[asSize(mark)]; }
    bool HasOldStage() const { return stageIsOld != decltype(stageIsOld){}; }

    void SetSelectedTab(int index) { selectedTab = index; }

    /// Brings the sampled record back into the working tables and sets every mark to 1.
    void Reset();

    /// Working samples: the length of the working U column, 0 without one.
    int WorkingSamples() const { return ColumnLength(workTables[kVelocities]); }
    /// Length of a table's first column, 0 without one.
    static int ColumnLength(const SMultiArray& table) { return table.IsEmpty() ? 0 : table.GetAt(0).GetSize(); }

    bool UsesAllSamples() const { return useAllSamples != 0; }
    /// True when sample index enters the statistics: its mark is 1 or more, or all samples are used.
    /// A sample beyond the marks counts only when all samples are used.
    bool Counts(int index) const {
        return UsesAllSamples() || (index < sampleFlags.GetSize() && sampleFlags.GetAt(index) >= 1);
    }

    /// Series by kind: 0..2 U, V, W; 3..5 u'v', u'w', v'w'.
    STimeSeries& Series(int kind);
    const STimeSeries& Series(int kind) const;

    // Indexes of sampledTables and workTables.
    static constexpr std::size_t kVelocities = 0;
    static constexpr std::size_t kCorrelation = 1;
    static constexpr std::size_t kSignalToNoise = 2;
    static constexpr std::size_t kSampledAmplitudes = 3;
    static constexpr std::size_t kSampledCompass = 4;
    static constexpr std::size_t kSampledPressure = 5;
    static constexpr std::size_t kWorkCompass = 3;
    static constexpr std::size_t kWorkPressure = 4;
    static constexpr std::size_t kStresses = 5;
    static constexpr std::size_t kCrossForward = 6;
    static constexpr std::size_t kCrossBackward = 7;
    static constexpr std::size_t kCoSpectra = 8;
    static constexpr std::size_t kQuadratureSpectra = 9;
    // Indexes of stageTables.
    static constexpr std::size_t kContributions = 0;
    static constexpr std::size_t kTimes = 1;
    static constexpr std::size_t kEjectionPattern = 2;
    static constexpr std::size_t kSweepPattern = 3;
    static constexpr std::size_t kPhase = 4;
    static constexpr std::size_t kCoherence = 5;
    // Slots of scalarResults.
    static constexpr std::size_t kSampledMoments = 1;     ///< 3 means, 3 variances, 3 skewness values
    static constexpr std::size_t kFluctuationMeans = 10;  ///< over all samples
    static constexpr std::size_t kVelocityMoments = 13;   ///< 3 means, 3 variances, 3 skewness, 3 kurtosis values
    // Slots of statistics.
    static constexpr std::size_t kStressMoments = 0;       ///< 3 means, 3 variances, 3 skewness, 3 kurtosis values
    static constexpr std::size_t kVelocityVariances = 12;  ///< over all samples
    static constexpr std::size_t kMeanStresses = 15;
    static constexpr std::size_t kQuadrantRun = 18;  ///< increment, maximum, maximum lag, reference mean stress
    // Slots of resultBlock.
    static constexpr std::size_t kDissipationRate = 0;
    static constexpr std::size_t kTimeScales = 1;
    static constexpr std::size_t kSpectrumIntegrals = 4;

    // The tables by what they hold.
    SMultiArray& Velocities() { return workTables[kVelocities]; }
    const SMultiArray& Velocities() const { return workTables[kVelocities]; }
    SMultiArray& CorrelationScores() { return workTables[kCorrelation]; }
    const SMultiArray& CorrelationScores() const { return workTables[kCorrelation]; }
    SMultiArray& SignalToNoise() { return workTables[kSignalToNoise]; }
    const SMultiArray& SignalToNoise() const { return workTables[kSignalToNoise]; }
    SMultiArray& Compass() { return workTables[kWorkCompass]; }
    const SMultiArray& Compass() const { return workTables[kWorkCompass]; }
    SMultiArray& Pressure() { return workTables[kWorkPressure]; }
    const SMultiArray& Pressure() const { return workTables[kWorkPressure]; }
    SMultiArray& Stresses() { return workTables[kStresses]; }
    const SMultiArray& Stresses() const { return workTables[kStresses]; }
    SMultiArray& CrossForward() { return workTables[kCrossForward]; }
    const SMultiArray& CrossForward() const { return workTables[kCrossForward]; }
    SMultiArray& CrossBackward() { return workTables[kCrossBackward]; }
    const SMultiArray& CrossBackward() const { return workTables[kCrossBackward]; }
    SMultiArray& CoSpectra() { return workTables[kCoSpectra]; }
    const SMultiArray& CoSpectra() const { return workTables[kCoSpectra]; }
    SMultiArray& QuadratureSpectra() { return workTables[kQuadratureSpectra]; }
    const SMultiArray& QuadratureSpectra() const { return workTables[kQuadratureSpectra]; }
    SMultiArray& Contributions() { return stageTables[kContributions]; }
    const SMultiArray& Contributions() const { return stageTables[kContributions]; }
    SMultiArray& ContributionTimes() { return stageTables[kTimes]; }
    const SMultiArray& ContributionTimes() const { return stageTables[kTimes]; }
    SMultiArray& EjectionPattern() { return stageTables[kEjectionPattern]; }
    const SMultiArray& EjectionPattern() const { return stageTables[kEjectionPattern]; }
    SMultiArray& SweepPattern() { return stageTables[kSweepPattern]; }
    const SMultiArray& SweepPattern() const { return stageTables[kSweepPattern]; }
    SMultiArray& Phase() { return stageTables[kPhase]; }
    const SMultiArray& Phase() const { return stageTables[kPhase]; }
    SMultiArray& Coherence() { return stageTables[kCoherence]; }
    const SMultiArray& Coherence() const { return stageTables[kCoherence]; }
    SMultiArray& SampledVelocities() { return sampledTables[kVelocities]; }
    const SMultiArray& SampledVelocities() const { return sampledTables[kVelocities]; }

    /// Place of the sampling volume: X, Y, Z in metres.
    std::array<double, kComponents> Position() const {
        return {samplingVolumeX * kMetresPerMillimetre, samplingVolumeY * kMetresPerMillimetre,
                samplingVolumeZ * kMetresPerMillimetre};
    }
    void SetPosition(const std::array<double, kComponents>& metres) {
        samplingVolumeX = metres[0] / kMetresPerMillimetre;
        samplingVolumeY = metres[1] / kMetresPerMillimetre;
        samplingVolumeZ = metres[2] / kMetresPerMillimetre;
    }

    /// Moments of velocity component 0..2 as the moment block holds them.
    Moments VelocityMoments(int component) const {
        return MomentsAt(scalarResults.data() + kVelocityMoments, component);
    }
    void SetVelocityMoments(int component, const Moments& m) {
        PutMoments(scalarResults.data() + kVelocityMoments, component, m);
    }
    /// Moments of stress pair 0..2 (u'v', u'w', v'w').
    Moments StressMoments(int pair) const { return MomentsAt(statistics.data() + kStressMoments, pair); }
    void SetStressMoments(int pair, const Moments& m) { PutMoments(statistics.data() + kStressMoments, pair, m); }

    /// Whether something was accepted into a part of resultBlock: kDissipationRate, kTimeScales or kSpectrumIntegrals.
    bool HasResults(std::size_t part) const;
    /// True when it was, and the working record has changed since then.
    bool ResultsAreOld(std::size_t part) const { return resultsAreOld[part]; }
    /// Accepts values into a part of resultBlock.
    void SetResults(std::size_t part, std::span<const double> values);
    /// The working record has changed: what was computed and read before stays, and is known to be old.
    void AgeResults();

    std::uint32_t probeNumber = 1;
    std::array<SMultiArray, 6> sampledTables;
    SIntArray sampleFlags;
    SArray timeAxis;
    std::array<SMultiArray, 10> workTables;
    std::uint32_t coordinateSystem = 1;  ///< 1 probe XYZ, 2 Earth ENU, 0 other
    STimeSeries seriesU{STimeSeries::U};
    STimeSeries seriesV{STimeSeries::V};
    STimeSeries seriesW{STimeSeries::W};
    STimeSeries seriesUV{STimeSeries::UV};
    STimeSeries seriesUW{STimeSeries::UW};
    STimeSeries seriesVW{STimeSeries::VW};
    double samplingInterval = 0.0;  ///< seconds per sample
    std::uint32_t sampleCount = 0;
    STabsArray tabItems;
    std::int32_t selectedTab = -1;  ///< tab index
    std::array<SFrameAtrArray, 7> frameAttributes;
    std::string title;  ///< the probe's caption
    std::array<std::uint32_t, 2> titleWords{};
    SMultiArray resultTable;
    std::uint32_t zoomMode = 0;
    std::uint32_t stressesFormed = 0;
    double samplingVolumeX = 0.0;  ///< mm
    double samplingVolumeY = 0.0;
    double samplingVolumeZ = 0.0;
    std::uint32_t isProbe = 1;  ///< 1 listed as "Probe %d", 0 as "Burst %d"
    std::uint32_t flagD = 0;
    std::array<double, 22> statistics{};
    std::array<SMultiArray, 6> stageTables;
    std::uint32_t spectralLags = 0;  ///< M of the last spectral analysis
    std::uint32_t spectralWindow = 0;
    std::uint32_t spectralUnit = 0;
    std::uint32_t bandMode = 0;
    std::uint32_t quadrantStress = 0;
    std::uint32_t optionWord = 0;
    std::array<double, 25> scalarResults{};
    std::array<std::uint32_t, 6> stageDone{};
    std::uint32_t useAllSamples = 1;
    std::array<double, 7> resultBlock{};
    /// By the first index of each part of resultBlock. Not stored: known while the workspace is open.
    std::array<bool, 7> resultsAreOld{};
    /// By done mark; not stored either.
    std::array<bool, 6> stageIsOld{};
    /// Whether a record that a filter had shortened was clipped: the marks are then those of other samples. Not stored:
    /// known while the workspace is open, and concluded from the record when one is read.
    bool marksMoved = false;

    friend bool operator==(const SAdvProbe&, const SAdvProbe&) = default;

  private:
    static Moments MomentsAt(const double* block, int i) {
        return {block[i], block[3 + i], block[6 + i], block[9 + i]};
    }
    static void PutMoments(double* block, int i, const Moments& m) {
        block[i] = m.mean;
        block[3 + i] = m.variance;
        block[6 + i] = m.skewness;
        block[9 + i] = m.kurtosis;
    }
};

/// The probes of a data file.
class SAdvProbesArray : public GrowArray<SAdvProbe> {
  public:
    const char* ClassName() const override { return "SAdvProbesArray"; }
    void Serialize(Archive& archive) override;
};

}  // namespace vorlan
