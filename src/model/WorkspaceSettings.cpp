#include "model/WorkspaceSettings.h"

#include "model/Archive.h"

namespace vorlan {

namespace {

// The stage codes 5 and 7 stand exchanged in the file, which keeps the file's own numbering.
int exchangedStageCode(int code) {
    return code == 5 ? 7 : code == 7 ? 5 : code;
}

// The window is stored as its dialog button: Bartlett and Tukey exchanged.
int exchangedWindowCode(int code) {
    return code == 1 ? 2 : code == 2 ? 1 : code;
}

void serializeCode(Archive& archive, int& code, int last, int (*exchange)(int)) {
    std::int32_t word = exchange(code);
    archive.value(word);
    if (archive.isLoading() && word >= 0 && word <= last) {
        code = exchange(word);
    }
}

void serialize(Archive& archive, std::int32_t& word) {
    archive.value(word);
}

void serialize(Archive& archive, double& number) {
    archive.value(number);
}

void serialize(Archive& archive, StoredFlag& flag) {
    archive.value(flag.word());
}

template <class Code>
void serialize(Archive& archive, Code& code) {
    auto word = static_cast<std::int32_t>(code);
    archive.value(word);
    code = static_cast<Code>(word);
}

template <class... Fields>
void serializeAll(Archive& archive, Fields&... fields) {
    (serialize(archive, fields), ...);
}

}  // namespace

void WorkspaceSettings::Serialize(Archive& archive) {
    ScoreTest& correlation = editing.correlation;
    ScoreTest& snr = editing.signalToNoise;
    serializeAll(archive, activeFile, activeProbe, activeItem, previousFile, previousProbe, previousItem);
    serializeCode(archive, choiceA, 7, exchangedStageCode);
    serializeCode(archive, choiceB, 7, exchangedStageCode);
    serializeAll(archive, physicalValue, activeView, reservedA2, reservedA3, displaySwitch, reservedA5);
    serializeAll(archive, correlation.on, snr.on, editing.spikeFilter, editing.velocityTest,
                 correlation.averageThreshold, snr.averageThreshold, correlation.minimumThreshold, snr.minimumThreshold,
                 editing.accelerationThreshold, editing.velocityThreshold, correlation.statistic, snr.statistic,
                 editing.treatment);
    serializeAll(archive, filter.cutoff, filter.halfWidth, filter.type, filter.shape);
    serializeAll(archive, stationarity.bands, stationarity.mode);
    serializeAll(archive, histograms.normalApproximation, histograms.grades, histograms.barWidth);
    serializeAll(archive, spectral.lags, spectral.truncationMode, spectral.unitButton, spectral.windowButton,
                 spectral.percent, lastTruncationPoint);
    serializeCode(archive, lastWindowCode, 3, exchangedWindowCode);
    std::int32_t unit = lastUnitIsRad ? 0 : 1;
    archive.value(unit);
    if (unit == 0 || unit == 1) {
        lastUnitIsRad = unit == 0;
    }
    serializeAll(archive, quadrants.increment, quadrants.maximum, quadrants.ejectionThreshold, quadrants.sweepThreshold,
                 quadrants.maximumLag, quadrants.stressType);
    serializeAll(archive, vectors.plane, vectors.pixels, vectors.speed, vectors.smaller, meanVelocity.value,
                 meanVelocity.mode);
}

}  // namespace vorlan
