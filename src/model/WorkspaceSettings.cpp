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

}  // namespace

void WorkspaceSettings::Serialize(Archive& archive) {
    for (std::int32_t* v : {&activeFile, &activeProbe, &activeItem, &previousFile, &previousProbe, &previousItem}) {
        archive.value(*v);
    }
    serializeCode(archive, choiceA, 7, exchangedStageCode);
    serializeCode(archive, choiceB, 7, exchangedStageCode);
    for (std::int32_t* v : {&physicalValue, &activeView, &reservedA2, &reservedA3, &displaySwitch, &reservedA5,
                            &correlationTest, &snrTest, &spikeFilter, &velocityTest}) {
        archive.value(*v);
    }
    for (double* v : {&averageCorrelation, &averageSnr, &minimumCorrelation, &minimumSnr, &accelerationThreshold,
                      &velocityThreshold}) {
        archive.value(*v);
    }
    for (std::int32_t* v : {&correlationStatistic, &snrStatistic, &badSampleTreatment}) {
        archive.value(*v);
    }
    archive.value(filterCutoff);
    archive.value(filterHalfWidth);
    for (std::int32_t* v :
         {&filterType, &filterShape, &bandCount, &bandMode, &normalApproximation, &gradeCount, &barWidth, &lagCount,
          &truncationMode, &unitButton, &windowButton, &lagPercent, &lastTruncationPoint}) {
        archive.value(*v);
    }
    serializeCode(archive, lastWindowCode, 3, exchangedWindowCode);
    std::int32_t unit = lastUnitIsRad ? 0 : 1;
    archive.value(unit);
    if (unit == 0 || unit == 1) {
        lastUnitIsRad = unit == 0;
    }
    for (double* v : {&holeIncrement, &holeMaximum, &ejectionThreshold, &sweepThreshold, &maximumTimeLag}) {
        archive.value(*v);
    }
    for (std::int32_t* v : {&quadrantStress, &planPlane, &planPixels}) {
        archive.value(*v);
    }
    for (double* v : {&planSpeed, &planSmaller, &userMeanVelocity}) {
        archive.value(*v);
    }
    archive.value(meanVelocityMode);
}

}  // namespace vorlan
