#include "analysis/Editing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "analysis/ProbeMoments.h"
#include "analysis/Stresses.h"
#include "model/DefaultFrames.h"
#include "model/Index.h"
#include "model/StageTable.h"
#include "model/StoreValue.h"
#include "model/Text.h"
#include "model/Units.h"

namespace vorlan {

namespace {

constexpr const char* kTitle = "Cleaned-up time series";

/// Three columns that all cover the working record, read and written where they lie: nobody else may change or copy
/// the table meanwhile.
class Columns {
  public:
    Columns(SMultiArray& table, int samples, Progress& progress) : table_(table), progress_(progress) {
        for (int c = 0; c < 3; ++c) {
            const SArray& column = table.GetAt(c);
            if (column.GetSize() < samples) {
                throw InvalidArgument();
            }
            units_[asSize(c)] = column.view().data();
            scales_[asSize(c)] = column.GetScale();
        }
    }

    double value(std::size_t c, int i) const { return units_[c][i] * scales_[c]; }

    /// Puts the mean of its neighbours in the place of a value.
    void interpolate(std::size_t c, int i) {
        if (own_[c] == nullptr) {
            // The column may have been shared until now.
            own_[c] = table_.ElementAt(asInt(c)).view().data();
            units_[c] = own_[c];
            progress_.pump();
        }
        own_[c][i] = truncateToInt32((value(c, i - 1) + value(c, i + 1)) * 0.5 / scales_[c]);
    }
    void interpolateAll(int i) {
        for (std::size_t c = 0; c < units_.size(); ++c) {
            interpolate(c, i);
        }
    }

  private:
    SMultiArray& table_;
    Progress& progress_;
    std::array<const std::int32_t*, 3> units_{};
    std::array<std::int32_t*, 3> own_{};  // null until a value is replaced
    std::array<double, 3> scales_{};
};

/// Visits the samples of those tested, 1..N-2, that suspect(i) names, in order; returns the number of the tested. Many
/// samples are looked at before the first of them is visited, as several are looked at together: where a visit changes
/// what the next sample is suspected for, it returns true, and that one is visited too.
template <class Suspect, class Visit>
int visitSuspects(int samples, Progress& progress, Suspect suspect, Visit visit) {
    constexpr int kPart = 4096;
    constexpr int kPartsPerBreath = 16;
    std::array<bool, kPart> suspects;
    bool next = false;
    int parts = 0;
    for (int first = 1; first < samples - 1; first += kPart) {
        const int count = std::min(kPart, samples - 1 - first);
        for (int i = 0; i < count; ++i) {
            suspects[asSize(i)] = suspect(first + i);
        }
        for (int i = 0; i < count; ++i) {
            if (suspects[asSize(i)] || next) {
                next = visit(first + i);
            }
        }
        if (++parts % kPartsPerBreath == 0) {
            progress.pump();
        }
    }
    progress.pump();
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
    for (const StageRow& row : stageTable()) {
        if (!row.forgottenOnRemoval || !probe.IsDone(*row.mark)) {
            continue;
        }
        probe.SetDone(*row.mark, false);
        const int tab = probe.tabItems.LastIndexOfStage(asInt(row.stage));
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
    const Columns scores(probe.workTables[scoreTable], samples, progress);
    Columns velocities(probe.Velocities(), samples, progress);
    const auto reject = [&](int i) {
        if (probe.UsesAllSamples()) {
            velocities.interpolateAll(i);
        }
        probe.sampleFlags.SetAt(i, 0);
        ++result.bad;
        return false;
    };
    if (statistic == ScoreStatistic::Average) {
        const auto low = [scores, threshold](int i) {
            return (scores.value(0, i) + scores.value(1, i) + scores.value(2, i)) / 3 < threshold;
        };
        result.tested = visitSuspects(samples, progress, low, reject);
    } else {
        const auto low = [scores, threshold](int i) {
            return (scores.value(0, i) < threshold) | (scores.value(1, i) < threshold) |
                   (scores.value(2, i) < threshold);
        };
        result.tested = visitSuspects(samples, progress, low, reject);
    }
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
    Columns velocities(probe.Velocities(), samples, progress);
    using Turns = std::array<double, 3>;
    const auto turnsAt = [](const Columns& columns, int i) {
        Turns turns;
        for (std::size_t c = 0; c < turns.size(); ++c) {
            const double left = columns.value(c, i) - columns.value(c, i - 1);
            const double right = columns.value(c, i + 1) - columns.value(c, i);
            turns[c] = left - right;
        }
        return turns;
    };
    // Nearly all samples are far below the threshold: divisions and root are for those that may not be.
    const auto suspect = [&velocities, turnsAt, small](int i) {
        const auto [u, v, w] = turnsAt(velocities, i);
        return !(u * u + v * v + w * w < small);
    };
    result.tested = visitSuspects(samples, progress, suspect, [&](int i) {
        auto [u, v, w] = turnsAt(velocities, i);
        u /= interval;
        v /= interval;
        w /= interval;
        if (!(threshold < std::sqrt(u * u + v * v + w * w))) {
            return false;
        }
        if (repairs) {
            velocities.interpolateAll(i);
        }
        probe.sampleFlags.SetAt(i, 0);
        ++result.bad;
        return repairs;
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
        const Moments moments = probe.VelocityMoments(asInt(c));
        means[c] = moments.mean;
        limits[c] = k * std::sqrt(moments.variance);
    }
    Columns velocities(probe.Velocities(), samples, progress);
    const auto farOff = [&velocities, means, limits](std::size_t c, int i) {
        return std::fabs(velocities.value(c, i) - means[c]) > limits[c];
    };
    const auto suspect = [farOff](int i) { return farOff(0, i) | farOff(1, i) | farOff(2, i); };
    result.tested = SAdvProbe::kComponents * visitSuspects(samples, progress, suspect, [&](int i) {
                        for (std::size_t c = 0; c < means.size(); ++c) {
                            if (!farOff(c, i)) {
                                continue;
                            }
                            if (probe.UsesAllSamples()) {
                                velocities.interpolate(c, i);
                            }
                            probe.sampleFlags.SetAt(i, 0);
                            ++result.bad;
                        }
                        return false;
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

    progress.status("Time series editing: ");
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
    // Only now: the velocity test is against the moments of the record as it was.
    computeProbeMoments(probe, progress);
    return result;
}

}  // namespace vorlan
