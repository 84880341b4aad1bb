#include "app/RecomputeChain.h"

#include <algorithm>

#include "analysis/CrossSpectralAnalysis.h"
#include "analysis/Histogram.h"
#include "analysis/Quadrants.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/Stationarity.h"

namespace vorlan {

namespace {

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
    using Settings = WorkspaceSettings;
    static const std::vector<StageRepeat> chain = {
        {DoneMark::Stationarity,
         [](SAdvProbe& probe, const Settings& settings, Progress& progress) {
             return analyseStationarity(probe, usable(settings.stationarity), progress);
         }},
        {DoneMark::Histograms,
         [](SAdvProbe& probe, const Settings& settings, Progress& progress) {
             return analyseDistributions(probe, usable(settings.histograms), progress);
         }},
        {DoneMark::Spectral, [](SAdvProbe& probe, const Settings&,
                                Progress& progress) { return analyseSpectra(probe, spectralRunOf(probe), progress); }},
        // Nothing of this stage is computed: it draws the working record.
        {DoneMark::MeanVelocity, [](SAdvProbe&, const Settings&, Progress&) { return std::string(); }},
        {DoneMark::CrossSpectral,
         [](SAdvProbe& probe, const Settings&, Progress& progress) { return analyseCrossSpectra(probe, progress); }},
        {DoneMark::Quadrants,
         [](SAdvProbe& probe, const Settings& settings, Progress& progress) {
             return analyseQuadrants(probe, usable(settings.quadrants), progress);
         }},
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
