#include "analysis/EditingSettings.h"

namespace vorlan {

namespace {

ScoreStatistic statisticOf(std::int32_t word) {
    return word == 1 ? ScoreStatistic::Minimum : ScoreStatistic::Average;
}

}  // namespace

EditingSettings editingSettingsOf(const WorkspaceSettings& settings) {
    EditingSettings dialog;
    dialog.correlation = {settings.correlationTest != 0, statisticOf(settings.correlationStatistic),
                          settings.averageCorrelation, settings.minimumCorrelation};
    dialog.signalToNoise = {settings.snrTest != 0, statisticOf(settings.snrStatistic), settings.averageSnr,
                            settings.minimumSnr};
    dialog.spikeFilter = settings.spikeFilter != 0;
    dialog.accelerationThreshold = settings.accelerationThreshold;
    dialog.velocityTest = settings.velocityTest != 0;
    dialog.velocityThreshold = settings.velocityThreshold;
    dialog.treatment = settings.badSampleTreatment == 1 ? BadSampleTreatment::Remove : BadSampleTreatment::Interpolate;
    return dialog;
}

void storeEditingSettings(const EditingSettings& dialog, WorkspaceSettings& settings) {
    settings.correlationTest = dialog.correlation.on ? 1 : 0;
    settings.correlationStatistic = static_cast<std::int32_t>(dialog.correlation.statistic);
    settings.averageCorrelation = dialog.correlation.averageThreshold;
    settings.minimumCorrelation = dialog.correlation.minimumThreshold;
    settings.snrTest = dialog.signalToNoise.on ? 1 : 0;
    settings.snrStatistic = static_cast<std::int32_t>(dialog.signalToNoise.statistic);
    settings.averageSnr = dialog.signalToNoise.averageThreshold;
    settings.minimumSnr = dialog.signalToNoise.minimumThreshold;
    settings.spikeFilter = dialog.spikeFilter ? 1 : 0;
    settings.accelerationThreshold = dialog.accelerationThreshold;
    settings.velocityTest = dialog.velocityTest ? 1 : 0;
    settings.velocityThreshold = dialog.velocityThreshold;
    settings.badSampleTreatment = static_cast<std::int32_t>(dialog.treatment);
}

}  // namespace vorlan
