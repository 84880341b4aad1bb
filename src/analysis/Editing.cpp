#include "analysis/Editing.h"

#include <array>
#include <cmath>
#include <utility>

#include "analysis/Stresses.h"
#include "model/DefaultFrames.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr double kGravity = 981.0;  // cm/s^2
constexpr const char* kTitle = "Cleaned-up time series";

/// Three columns that all cover the working record.
std::array<SArray*, 3> threeColumns(SMultiArray& table, int samples) {
    std::array<SArray*, 3> columns{};
    for (int c = 0; c < 3; ++c) {
        columns[static_cast<std::size_t>(c)] = &table.ElementAt(c);
        if (table.GetAt(c).GetSize() < samples) {
            throw InvalidArgument();
        }
    }
    return columns;
}

void interpolate(SArray& column, int i) {
    column.SetValue(i, (column.GetValue(i - 1) + column.GetValue(i + 1)) * 0.5);
}

double acceleration(const SArray& column, int i, double interval) {
    const double left = column.GetValue(i) - column.GetValue(i - 1);
    const double right = column.GetValue(i + 1) - column.GetValue(i);
    return (left - right) / interval;
}

/// Forgets the stages whose results are of all samples, once bad samples are left out.
void removeMarkedStages(SAdvProbe& probe) {
    constexpr std::array<std::pair<DoneMark, Stage>, 4> kStages = {{{DoneMark::Stationarity, Stage::Stationarity},
                                                                    {DoneMark::Spectral, Stage::Spectral},
                                                                    {DoneMark::CrossSpectral, Stage::CrossSpectral},
                                                                    {DoneMark::Quadrants, Stage::Quadrants}}};
    for (const auto& [mark, stage] : kStages) {
        if (!probe.IsDone(mark)) {
            continue;
        }
        probe.SetDone(mark, false);
        const int tab = probe.tabItems.LastIndexOfStage(static_cast<int>(stage));
        if (tab < 0) {
            continue;
        }
        probe.tabItems.RemoveAt(tab);
        if (tab < probe.selectedTab) {
            probe.SetSelectedTab(probe.selectedTab - 1);
        }
    }
}

}  // namespace

CriterionResult testScores(SAdvProbe& probe, std::size_t scoreTable, ScoreStatistic statistic, double threshold) {
    const int samples = probe.WorkingSamples();
    CriterionResult result;
    if (samples < 3) {
        return result;
    }
    const auto scores = threeColumns(probe.workTables[scoreTable], samples);
    const auto velocities = threeColumns(probe.workTables[SAdvProbe::kVelocities], samples);
    for (int i = 1; i < samples - 1; ++i, ++result.tested) {
        const double c1 = scores[0]->GetValue(i);
        const double c2 = scores[1]->GetValue(i);
        const double c3 = scores[2]->GetValue(i);
        const bool bad = statistic == ScoreStatistic::Average ? (c1 + c2 + c3) / 3 < threshold
                                                              : c1 < threshold || c2 < threshold || c3 < threshold;
        if (!bad) {
            continue;
        }
        if (probe.UsesAllSamples()) {
            for (SArray* column : velocities) {
                interpolate(*column, i);
            }
        }
        probe.sampleFlags.SetAt(i, 0);
        ++result.bad;
    }
    return result;
}

CriterionResult filterSpikes(SAdvProbe& probe, double accelerationThreshold) {
    const int samples = probe.WorkingSamples();
    CriterionResult result;
    if (samples < 3) {
        return result;
    }
    const double threshold = kGravity * accelerationThreshold;
    const double interval = probe.samplingInterval;
    // The repair takes both neighbour accelerations as -1 / dt: a neighbour is never the larger of them, and the
    // sample itself is replaced when both exceed the threshold.
    const bool repairs = probe.UsesAllSamples() && threshold < std::fabs(-1.0 / interval);
    const auto velocities = threeColumns(probe.workTables[SAdvProbe::kVelocities], samples);
    for (int i = 1; i < samples - 1; ++i, ++result.tested) {
        const double u = acceleration(*velocities[0], i, interval);
        const double v = acceleration(*velocities[1], i, interval);
        const double w = acceleration(*velocities[2], i, interval);
        if (!(threshold < std::sqrt(u * u + v * v + w * w))) {
            continue;
        }
        if (repairs) {
            for (SArray* column : velocities) {
                interpolate(*column, i);
            }
        }
        probe.sampleFlags.SetAt(i, 0);
        ++result.bad;
    }
    return result;
}

CriterionResult testVelocities(SAdvProbe& probe, double k) {
    const int samples = probe.WorkingSamples();
    CriterionResult result;
    if (samples < 3) {
        return result;
    }
    std::array<double, SAdvProbe::kComponents> means{};
    std::array<double, SAdvProbe::kComponents> limits{};
    for (std::size_t c = 0; c < means.size(); ++c) {
        const Moments moments = probe.VelocityMoments(static_cast<int>(c));
        means[c] = moments.mean;
        limits[c] = k * std::sqrt(moments.variance);
    }
    const auto velocities = threeColumns(probe.workTables[SAdvProbe::kVelocities], samples);
    for (int i = 1; i < samples - 1; ++i) {
        for (std::size_t c = 0; c < means.size(); ++c, ++result.tested) {
            if (!(std::fabs(velocities[c]->GetValue(i) - means[c]) > limits[c])) {
                continue;
            }
            if (probe.UsesAllSamples()) {
                interpolate(*velocities[c], i);
            }
            probe.sampleFlags.SetAt(i, 0);
            ++result.bad;
        }
    }
    return result;
}

EditingResult editSeries(SAdvProbe& probe, const EditingSettings& settings) {
    if (settings.treatment == BadSampleTreatment::Remove) {
        probe.useAllSamples = 0;
        removeMarkedStages(probe);
    } else {
        probe.useAllSamples = 1;
    }

    EditingResult result;
    if (settings.correlation.on) {
        result.correlation = testScores(probe, SAdvProbe::kCorrelation, settings.correlation.statistic,
                                        settings.correlation.threshold());
    }
    if (settings.signalToNoise.on) {
        result.signalToNoise = testScores(probe, SAdvProbe::kSignalToNoise, settings.signalToNoise.statistic,
                                          settings.signalToNoise.threshold());
    }
    // A spike filter that finds nothing leaves the caption as it was.
    if (!settings.spikeFilter) {
        probe.title = kTitle;
    } else {
        result.spikes = filterSpikes(probe, settings.accelerationThreshold);
        if (result.spikes.bad > 0) {
            probe.title = formatted("%s (%d spikes removed)", kTitle, result.spikes.bad);
        }
    }
    if (settings.velocityTest) {
        result.velocity = testVelocities(probe, settings.velocityThreshold);
        if (result.velocity.bad > 0) {
            probe.title = formatted("%s (%d samples replaced)", kTitle, result.velocity.bad);
        }
    }
    setRecordTitle(probe, kTitle);
    formStresses(probe);
    return result;
}

}  // namespace vorlan
