#include "analysis/Editing.h"

#include <algorithm>
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
class Columns {
  public:
    Columns(SMultiArray& table, int samples) : table_(table) {
        for (int c = 0; c < 3; ++c) {
            read(c);
            if (table.GetAt(c).GetSize() < samples) {
                throw InvalidArgument();
            }
        }
    }

    double value(std::size_t c, int i) const { return units_[c][i] * scales_[c]; }

    /// Puts the mean of its neighbours in the place of a value.
    void interpolate(std::size_t c, int i) {
        const int column = static_cast<int>(c);
        table_.ElementAt(column).SetValue(i, (value(c, i - 1) + value(c, i + 1)) * 0.5);
        // The column may have been shared until now.
        read(column);
    }
    void interpolateAll(int i) {
        for (std::size_t c = 0; c < units_.size(); ++c) {
            interpolate(c, i);
        }
    }

  private:
    void read(int column) {
        const SArray& samples = table_.GetAt(column);
        units_[static_cast<std::size_t>(column)] = samples.view().data();
        scales_[static_cast<std::size_t>(column)] = samples.GetScale();
    }

    SMultiArray& table_;
    std::array<const std::int32_t*, 3> units_{};
    std::array<double, 3> scales_{};
};

/// Visits the samples that are tested, 1..N-2, in order; returns their number.
template <class Visit>
int forEachTested(int samples, Progress& progress, Visit visit) {
    constexpr int kPart = 1 << 18;
    for (int first = 1; first < samples - 1; first += kPart) {
        const int end = std::min(first + kPart, samples - 1);
        for (int i = first; i < end; ++i) {
            visit(i);
        }
        progress.breathe();
    }
    return std::max(samples - 2, 0);
}

/// The largest acceleration, squared and times dt squared, that surely stays below the threshold whatever the rounding;
/// 0 where that is not sure.
double surelySmall(double threshold, double interval) {
    constexpr double kMargin = 1e-9;
    constexpr double kTiny = 1e-200;
    const double limit = threshold * threshold * (interval * interval) * (1.0 - kMargin);
    return threshold > 0.0 && limit > kTiny ? limit : 0.0;
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

CriterionResult testScores(SAdvProbe& probe, std::size_t scoreTable, ScoreStatistic statistic, double threshold,
                           Progress& progress) {
    const int samples = probe.WorkingSamples();
    CriterionResult result;
    if (samples < 3) {
        return result;
    }
    const Columns scores(probe.workTables[scoreTable], samples);
    Columns velocities(probe.workTables[SAdvProbe::kVelocities], samples);
    const bool average = statistic == ScoreStatistic::Average;
    result.tested = forEachTested(samples, progress, [&](int i) {
        const double c1 = scores.value(0, i);
        const double c2 = scores.value(1, i);
        const double c3 = scores.value(2, i);
        const bool bad = average ? (c1 + c2 + c3) / 3 < threshold : c1 < threshold || c2 < threshold || c3 < threshold;
        if (!bad) {
            return;
        }
        if (probe.UsesAllSamples()) {
            velocities.interpolateAll(i);
        }
        probe.sampleFlags.SetAt(i, 0);
        ++result.bad;
    });
    return result;
}

CriterionResult filterSpikes(SAdvProbe& probe, double accelerationThreshold, Progress& progress) {
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
    const double small = surelySmall(threshold, interval);
    Columns velocities(probe.workTables[SAdvProbe::kVelocities], samples);
    const auto turn = [&velocities](std::size_t c, int i) {
        const double left = velocities.value(c, i) - velocities.value(c, i - 1);
        const double right = velocities.value(c, i + 1) - velocities.value(c, i);
        return left - right;
    };
    result.tested = forEachTested(samples, progress, [&](int i) {
        double u = turn(0, i);
        double v = turn(1, i);
        double w = turn(2, i);
        // Nearly all samples are far below the threshold: divisions and root are for those that may not be.
        if (u * u + v * v + w * w < small) {
            return;
        }
        u /= interval;
        v /= interval;
        w /= interval;
        if (!(threshold < std::sqrt(u * u + v * v + w * w))) {
            return;
        }
        if (repairs) {
            velocities.interpolateAll(i);
        }
        probe.sampleFlags.SetAt(i, 0);
        ++result.bad;
    });
    return result;
}

CriterionResult testVelocities(SAdvProbe& probe, double k, Progress& progress) {
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
    Columns velocities(probe.workTables[SAdvProbe::kVelocities], samples);
    result.tested = SAdvProbe::kComponents * forEachTested(samples, progress, [&](int i) {
                        for (std::size_t c = 0; c < means.size(); ++c) {
                            if (!(std::fabs(velocities.value(c, i) - means[c]) > limits[c])) {
                                continue;
                            }
                            if (probe.UsesAllSamples()) {
                                velocities.interpolate(c, i);
                            }
                            probe.sampleFlags.SetAt(i, 0);
                            ++result.bad;
                        }
                    });
    return result;
}

EditingResult editSeries(SAdvProbe& probe, const EditingSettings& settings, Progress& progress) {
    if (settings.treatment == BadSampleTreatment::Remove) {
        probe.useAllSamples = 0;
        removeMarkedStages(probe);
    } else {
        probe.useAllSamples = 1;
    }

    EditingResult result;
    if (settings.correlation.on) {
        result.correlation = testScores(probe, SAdvProbe::kCorrelation, settings.correlation.statistic,
                                        settings.correlation.threshold(), progress);
    }
    if (settings.signalToNoise.on) {
        result.signalToNoise = testScores(probe, SAdvProbe::kSignalToNoise, settings.signalToNoise.statistic,
                                          settings.signalToNoise.threshold(), progress);
    }
    // A spike filter that finds nothing leaves the caption as it was.
    if (!settings.spikeFilter) {
        probe.title = kTitle;
    } else {
        result.spikes = filterSpikes(probe, settings.accelerationThreshold, progress);
        if (result.spikes.bad > 0) {
            probe.title = formatted("%s (%d spikes removed)", kTitle, result.spikes.bad);
        }
    }
    if (settings.velocityTest) {
        result.velocity = testVelocities(probe, settings.velocityThreshold, progress);
        if (result.velocity.bad > 0) {
            probe.title = formatted("%s (%d samples replaced)", kTitle, result.velocity.bad);
        }
    }
    setRecordTitle(probe, kTitle);
    formStresses(probe, StressResolution::SamePosition, progress);
    return result;
}

}  // namespace vorlan
