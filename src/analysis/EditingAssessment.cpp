#include "analysis/EditingAssessment.h"

#include <utility>

#include "model/Text.h"

namespace vorlan {

EditingResult assessEditing(const SAdvProbe& probe, const EditingSettings& settings) {
    // Without the use of all samples the tests only mark, so every criterion sees the record as it stands.
    SAdvProbe trial = probe;
    trial.useAllSamples = 0;
    EditingResult result;
    if (settings.correlation.on) {
        result.correlation = testScores(trial, SAdvProbe::kCorrelation, settings.correlation.statistic,
                                        settings.correlation.threshold());
    }
    if (settings.signalToNoise.on) {
        result.signalToNoise = testScores(trial, SAdvProbe::kSignalToNoise, settings.signalToNoise.statistic,
                                          settings.signalToNoise.threshold());
    }
    if (settings.spikeFilter) {
        result.spikes = filterSpikes(trial, settings.accelerationThreshold);
    }
    if (settings.velocityTest) {
        result.velocity = testVelocities(trial, settings.velocityThreshold);
    }
    return result;
}

std::string keptSharesText(const EditingResult& result) {
    std::string text;
    for (const auto& [name, criterion] :
         {std::pair("Correlation", result.correlation), std::pair("SNR", result.signalToNoise),
          std::pair("Spike filter", result.spikes), std::pair("Velocity", result.velocity)}) {
        if (criterion.tested > 0) {
            text += text.empty() ? "" : "   ";
            text += formatted("%s: %.2f %% kept", name, 100.0 * criterion.keptShare());
        }
    }
    return text;
}

}  // namespace vorlan
