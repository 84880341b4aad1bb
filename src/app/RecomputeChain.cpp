#include "app/RecomputeChain.h"

#include <algorithm>

#include "analysis/AnalysedSeries.h"
#include "analysis/CrossSpectralAnalysis.h"
#include "analysis/Histogram.h"
#include "analysis/Quadrants.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/Stationarity.h"

namespace vorlan {

namespace {

std::string repeatStationarity(SAdvProbe& probe, const WorkspaceSettings& settings, Progress& progress) {
    analyseStationarity(probe, stationaritySettingsOf(settings), progress);
    return {};
}

std::string repeatDistributions(SAdvProbe& probe, const WorkspaceSettings& settings, Progress& progress) {
    analyseDistributions(probe, histogramSettingsOf(settings), progress);
    return {};
}

std::string repeatSpectral(SAdvProbe& probe, const WorkspaceSettings&, Progress& progress) {
    const SpectralRun run{static_cast<int>(probe.spectralLags), static_cast<int>(probe.spectralWindow),
                          static_cast<int>(probe.spectralUnit)};
    formAnalysedSeries(probe);
    if (!truncationPointFits(run.lags, probe.seriesU.values.GetSize())) {
        return kTruncationTooLarge;
    }
    analyseSpectra(probe, run, progress);
    return {};
}

// Nothing of this stage is computed: it draws the working record.
std::string repeatMeanVelocity(SAdvProbe&, const WorkspaceSettings&, Progress&) {
    return {};
}

std::string repeatCrossSpectral(SAdvProbe& probe, const WorkspaceSettings&, Progress& progress) {
    std::string refusal = crossSpectralRefusal(probe);
    if (refusal.empty()) {
        analyseCrossSpectra(probe, progress);
    }
    return refusal;
}

std::string repeatQuadrants(SAdvProbe& probe, const WorkspaceSettings& settings, Progress& progress) {
    analyseQuadrants(probe, quadrantSettingsOf(settings), progress);
    return {};
}

// A stage that raises keeps its results like one that is refused; the chain goes on.
std::string repeatOn(SAdvProbe& probe, const StageRepeat& stage, const WorkspaceSettings& settings,
                     Progress& progress) {
    SAdvProbe trial = probe;
    try {
        std::string reason = stage.repeat(trial, settings, progress);
        if (reason.empty()) {
            probe = std::move(trial);
        }
        return reason;
    } catch (const InvalidArgument& error) {
        return error.what();
    }
}

}  // namespace

const std::vector<StageRepeat>& recomputeChain() {
    static const std::vector<StageRepeat> chain = {
        {DoneMark::Stationarity, repeatStationarity},   {DoneMark::Histograms, repeatDistributions},
        {DoneMark::Spectral, repeatSpectral},           {DoneMark::MeanVelocity, repeatMeanVelocity},
        {DoneMark::CrossSpectral, repeatCrossSpectral}, {DoneMark::Quadrants, repeatQuadrants},
    };
    return chain;
}

std::vector<std::string> recomputeAll(SAdvProbe& probe, const WorkspaceSettings& settings, Progress& progress) {
    std::vector<std::string> reasons;
    for (const StageRepeat& stage : recomputeChain()) {
        if (!probe.IsDone(stage.mark)) {
            continue;
        }
        const std::string reason = repeatOn(probe, stage, settings, progress);
        if (!reason.empty() && std::find(reasons.begin(), reasons.end(), reason) == reasons.end()) {
            reasons.push_back(reason);
        }
    }
    return reasons;
}

}  // namespace vorlan
