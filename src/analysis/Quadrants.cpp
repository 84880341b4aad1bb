#include "analysis/Quadrants.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "analysis/EventPatterns.h"
#include "analysis/HoleSweep.h"
#include "analysis/ProgressPart.h"
#include "analysis/Stresses.h"
#include "model/DefaultFrames.h"
#include "model/Index.h"
#include "model/StageLimits.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr double kShareResolution = 1e-5;
constexpr double kPatternResolution = 1e-4;
constexpr const char* kOutward = "Outward Interactions (dimensionless velocities)";
constexpr const char* kInward = "Inward Interactions (dimensionless velocities)";

/// Diagrams of the patterns in the stage's group.
constexpr int kEjectionDiagram = 1;
constexpr int kSweepDiagram = 3;

/// trunc(whole / step) when it does not exceed limit.
std::optional<int> boundedQuotient(double whole, double step, int limit) {
    const double quotient = whole / step;
    return quotient < limit + 1.0 ? std::optional(truncateToInt32(quotient)) : std::nullopt;
}

/// Fluctuations and relative stress of the analysed pair.
struct PairRecord {
    std::vector<double> a;
    std::vector<double> b;
    std::vector<double> r;
    double meanStress = 0.0;
};

PairRecord pairRecord(const SAdvProbe& probe, int type, Progress& progress) {
    const StressPair& pair = kStressPairComponents[asSize(type)];
    PairRecord record;
    record.a = workingFluctuation(probe, pair.first);
    progress.pump();
    record.b = workingFluctuation(probe, pair.second);
    progress.pump();
    record.r = probe.Stresses().GetAt(type).Values();
    record.meanStress = probe.statistics[SAdvProbe::kMeanStresses + asSize(type)];
    for (double& r : record.r) {
        r /= record.meanStress;
    }
    progress.pump();
    return record;
}

void storeShares(SAdvProbe& probe, const HoleSums& sums, int sizes) {
    SMultiArray& contributions = probe.Contributions();
    SMultiArray& times = probe.ContributionTimes();
    for (int h = 0; h < sizes; ++h) {
        const auto index = asSize(h);
        std::array<double, kQuadrantBuckets> shares{};
        double stress = 0.0;
        std::uint32_t samples = 0;
        for (std::size_t q = 0; q < kQuadrantBuckets; ++q) {
            shares[q] = static_cast<std::int32_t>(sums.units[q][index]) * kShareResolution;
            stress += shares[q];
            samples += sums.samples[q][index];
        }
        for (std::size_t q = 0; q < kQuadrantBuckets; ++q) {
            const int bucket = asInt(q);
            contributions.ElementAt(bucket).SetValue(h, shares[q] / stress);
            times.ElementAt(bucket).SetValue(
                h, static_cast<double>(sums.samples[q][index]) / static_cast<double>(samples));
        }
    }
}

/// Samples of one bucket whose relative stress exceeds the threshold.
std::vector<std::size_t> eventsOf(const PairRecord& record, int bucket, double threshold) {
    std::vector<std::size_t> events;
    for (std::size_t j = 0; j < record.r.size(); ++j) {
        if (record.r[j] > threshold && quadrantOf(record.a[j], record.b[j]) == bucket) {
            events.push_back(j);
        }
    }
    return events;
}

void storePattern(SMultiArray& table, const std::vector<std::size_t>& events, const PairRecord& record,
                  const std::array<double, 2>& deviations, int lag, Progress& progress) {
    table.Reshape(2, kPatternResolution);
    for (std::size_t c = 0; c < deviations.size(); ++c) {
        ProgressPart part(progress, 0.5 * static_cast<double>(c), 0.5 * static_cast<double>(c + 1));
        std::vector<double> pattern = averageAround(events, c == 0 ? record.a : record.b, lag, part);
        // Without any event the pattern is 0 whatever the deviation is.
        for (double& value : pattern) {
            value = events.empty() ? 0.0 : value / deviations[c];
        }
        table.ElementAt(asInt(c)).StoreValues(pattern);
    }
}

void storePatterns(SAdvProbe& probe, const PairRecord& record, const QuadrantSettings& settings, int lag,
                   Progress& progress) {
    const StressPair& pair = kStressPairComponents[asSize(settings.stressType)];
    const auto deviation = [&](int component) {
        return std::sqrt(probe.statistics[SAdvProbe::kVelocityVariances + asSize(component)]);
    };
    const std::array<double, 2> deviations = {deviation(pair.first), deviation(pair.second)};
    std::vector<std::size_t> ejections;
    std::vector<std::size_t> sweeps;
    if (record.meanStress < 0.0) {
        ejections = eventsOf(record, 1, settings.ejectionThreshold);
        progress.pump();
        sweeps = eventsOf(record, 3, settings.sweepThreshold);
    } else if (record.meanStress > 0.0) {
        ejections = eventsOf(record, 0, settings.ejectionThreshold);
        progress.pump();
        sweeps = eventsOf(record, 2, settings.sweepThreshold);
    }
    progress.pump();
    const double events = static_cast<double>(std::max<std::size_t>(ejections.size() + sweeps.size(), 1));
    ProgressPart first(progress, 0.0, static_cast<double>(ejections.size()) / events);
    ProgressPart second(progress, static_cast<double>(ejections.size()) / events, 1.0);
    storePattern(probe.EjectionPattern(), ejections, record, deviations, lag, first);
    storePattern(probe.SweepPattern(), sweeps, record, deviations, lag, second);
}

/// Titles the pattern diagrams. A title that the user gave goes only when the events are interactions.
void titlePatterns(SAdvProbe& probe, bool interactions) {
    const int group = asInt(Stage::Quadrants);
    SFrameAtrArray& frames = probe.frameAttributes[asSize(group)];
    for (const auto& [record, title] : {std::pair(kEjectionDiagram, kOutward), std::pair(kSweepDiagram, kInward)}) {
        if (interactions) {
            while (frames.GetSize() <= record) {
                frames.Add(defaultFrame(group, frames.GetSize()));
            }
            frames.ElementAt(record).plotTitle = title;
        } else if (record < frames.GetSize() &&
                   (frames.GetAt(record).plotTitle == kOutward || frames.GetAt(record).plotTitle == kInward)) {
            frames.ElementAt(record).plotTitle = defaultFrame(group, record).plotTitle;
        }
    }
}

}  // namespace

std::string analyseQuadrants(SAdvProbe& probe, const QuadrantSettings& settings, Progress& progress) {
    if (settings.stressType < 0 || settings.stressType >= kStressPairs) {
        throw InvalidArgument();
    }
    const std::optional<int> holes =
        settings.increment < 0.0 ? 0 : boundedQuotient(settings.maximum, settings.increment, kMaximumHoleSizes);
    const std::optional<int> lags = boundedQuotient(settings.maximumLag, probe.samplingInterval, kMaximumPatternLag);
    if (!holes) {
        return formatted("There should be no more than %d hole sizes!", kMaximumHoleSizes);
    }
    if (!lags) {
        return formatted("The maximum lag should be no more than %d samples!", kMaximumPatternLag);
    }
    const int sizes = *holes;
    const int lag = *lags;
    progress.status(kQuadrantStatus);
    progress.pump();

    prepareStresses(probe, progress);
    const PairRecord record = pairRecord(probe, settings.stressType, progress);
    probe.Contributions().Reshape(kQuadrantBuckets, kShareResolution);
    probe.ContributionTimes().Reshape(kQuadrantBuckets, kShareResolution);
    if (!record.r.empty()) {
        storeShares(probe, sweepHoles(record.r, record.a, record.b, settings.increment, sizes, kShareResolution),
                    sizes);
    }
    progress.pump();
    storePatterns(probe, record, settings, lag, progress);

    probe.quadrantStress = static_cast<std::uint32_t>(settings.stressType);
    double* const run = probe.statistics.data() + SAdvProbe::kQuadrantRun;
    run[0] = settings.increment;
    run[1] = settings.maximum;
    run[2] = settings.maximumLag;
    run[3] = record.meanStress;
    titlePatterns(probe, probe.coordinateSystem == 0 || record.meanStress > 0.0);
    probe.SetDone(DoneMark::Quadrants);
    return {};
}

bool contributionSumsExceed(const SAdvProbe& probe) {
    const int type = asInt(probe.quadrantStress);
    const SMultiArray& stresses = probe.Stresses();
    const int sizes = SAdvProbe::ColumnLength(probe.Contributions());
    const double increment = probe.statistics[SAdvProbe::kQuadrantRun];
    if (!probe.IsDone(DoneMark::Quadrants) || sizes < 1 || type < 0 || type >= kStressPairs ||
        type >= stresses.GetSize() || stresses.GetAt(type).GetSize() != probe.WorkingSamples() || !(increment > 0.0)) {
        return false;
    }
    try {
        const PairRecord record = pairRecord(probe, type, noProgress());
        return sweepHoles(record.r, record.a, record.b, increment, sizes, kShareResolution).exceeded;
    } catch (const InvalidArgument&) {
        // Columns of a damaged workspace.
        return false;
    }
}

}  // namespace vorlan
