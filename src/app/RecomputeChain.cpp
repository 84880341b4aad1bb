#include "app/RecomputeChain.h"

#include <algorithm>

#include "analysis/AnalysedSeries.h"
#include "analysis/SpectralAnalysis.h"

namespace vorlan {

namespace {

std::string repeatSpectral(SAdvProbe& probe, const WorkspaceSettings&, Progress& progress) {
    SAdvProbe trial = probe;
    formAnalysedSeries(trial);
    const SpectralRun run{static_cast<int>(probe.spectralLags), static_cast<int>(probe.spectralWindow),
                          static_cast<int>(probe.spectralUnit)};
    if (!truncationPointFits(run.lags, trial.seriesU.values.GetSize())) {
        return kTruncationTooLarge;
    }
    analyseSpectra(trial, run, progress);
    probe = std::move(trial);
    return {};
}

}  // namespace

const std::vector<StageRepeat>& recomputeChain() {
    static const std::vector<StageRepeat> chain = {
        {DoneMark::Spectral, repeatSpectral},
    };
    return chain;
}

std::vector<std::string> recomputeAll(SAdvProbe& probe, const WorkspaceSettings& settings, Progress& progress) {
    std::vector<std::string> reasons;
    for (const StageRepeat& stage : recomputeChain()) {
        if (!probe.IsDone(stage.mark)) {
            continue;
        }
        const std::string reason = stage.repeat(probe, settings, progress);
        if (!reason.empty() && std::find(reasons.begin(), reasons.end(), reason) == reasons.end()) {
            reasons.push_back(reason);
        }
    }
    return reasons;
}

}  // namespace vorlan
