#include "model/SAdvProbe.h"

#include <algorithm>

#include "model/Archive.h"
#include "model/Index.h"
#include "model/SampleMarks.h"

namespace vorlan {

namespace {

// A stored probe whose containers are all empty: its fixed fields, its 22 tables, marks and tabs with a count each, the
// time axis, six series of 56 bytes and nine columns each, seven groups of frames.
constexpr std::size_t kEmptyColumn = sizeof(double) + sizeof(std::int32_t);
constexpr std::size_t kSmallestProbe =
    557 + (22 + 1 + 1) * sizeof(std::int32_t) + kEmptyColumn + 6 * (56 + 9 * kEmptyColumn) + 7 * sizeof(std::int32_t);

template <class T, std::size_t N>
void serializeWords(Archive& archive, std::array<T, N>& words) {
    archive.raw(words.data(), sizeof(T) * N);
}

}  // namespace

SAdvProbe::SAdvProbe() = default;

void SAdvProbe::Serialize(Archive& archive) {
    archive.value(probeNumber);
    archive.value(samplingInterval);
    archive.value(sampleCount);
    archive.value(selectedTab);
    archive.value(title);
    serializeWords(archive, titleWords);
    archive.value(zoomMode);
    archive.value(stressesFormed);
    archive.value(samplingVolumeX);
    archive.value(samplingVolumeY);
    archive.value(samplingVolumeZ);
    archive.value(isProbe);
    archive.value(flagD);
    serializeWords(archive, statistics);
    archive.value(spectralLags);
    archive.code(spectralWindow, 3);
    archive.code(spectralUnit, 1);
    archive.value(bandMode);
    archive.value(quadrantStress);
    archive.value(optionWord);
    serializeWords(archive, scalarResults);
    serializeWords(archive, stageDone);
    archive.value(coordinateSystem);
    archive.value(useAllSamples);
    serializeWords(archive, resultBlock);
    // The pressure table is never stored.
    for (std::size_t i = 0; i < kSampledPressure; ++i) {
        sampledTables[i].Serialize(archive);
    }
    sampleFlags.Serialize(archive);
    timeAxis.Serialize(archive);
    for (SMultiArray& table : workTables) {
        table.Serialize(archive);
    }
    resultTable.Serialize(archive);
    for (SMultiArray& table : stageTables) {
        table.Serialize(archive);
    }
    for (STimeSeries* series : {&seriesU, &seriesV, &seriesW, &seriesUV, &seriesUW, &seriesVW}) {
        series->Serialize(archive);
        if (archive.isLoading()) {
            series->samplingInterval = samplingInterval;
        }
    }
    tabItems.Serialize(archive);
    for (SFrameAtrArray& frames : frameAttributes) {
        frames.Serialize(archive);
    }
    if (archive.isLoading()) {
        marksMoved = !marksAreOfWorkingSamples(*this);
    }
}

bool SAdvProbe::IsChanged() const {
    return std::any_of(stageDone.begin(), stageDone.end(), [](std::uint32_t mark) { return mark != 0; });
}

void SAdvProbe::Reset() {
    workTables[kVelocities] = sampledTables[kVelocities];
    workTables[kCorrelation] = sampledTables[kCorrelation];
    workTables[kSignalToNoise] = sampledTables[kSignalToNoise];
    // The sampled amplitudes have no working copy.
    workTables[kWorkCompass] = sampledTables[kSampledCompass];
    workTables[kWorkPressure] = sampledTables[kSampledPressure];
    scalarResults[0] = 0.0;
    marksMoved = false;
    const int samples = ColumnLength(sampledTables[kVelocities]);
    if (sampleFlags.GetSize() < samples) {
        sampleFlags.SetSize(samples);
    }
    std::fill_n(sampleFlags.begin(), samples, 1);
}

namespace {

constexpr std::array<std::size_t, 3> kResultParts = {SAdvProbe::kDissipationRate, SAdvProbe::kTimeScales,
                                                     SAdvProbe::kSpectrumIntegrals};

std::size_t lengthOfPart(std::size_t part) {
    return part == SAdvProbe::kDissipationRate ? 1 : SAdvProbe::kComponents;
}

}  // namespace

bool SAdvProbe::HasResults(std::size_t part) const {
    const auto* first = resultBlock.data() + part;
    return std::any_of(first, first + lengthOfPart(part), [](double value) { return value != 0.0; });
}

void SAdvProbe::SetResults(std::size_t part, std::span<const double> values) {
    std::copy(values.begin(), values.end(), resultBlock.data() + part);
    resultsAreOld[part] = false;
}

void SAdvProbe::AgeResults() {
    for (const std::size_t part : kResultParts) {
        resultsAreOld[part] = resultsAreOld[part] || HasResults(part);
    }
    for (std::size_t mark = 0; mark < stageDone.size(); ++mark) {
        // The plans have no results of their own: they draw the record as it is.
        stageIsOld[mark] = stageDone[mark] != 0 && mark != asSize(DoneMark::MeanVelocity);
    }
}

STimeSeries& SAdvProbe::Series(int kind) {
    switch (kind) {
        case 0:
            return seriesU;
        case 1:
            return seriesV;
        case 2:
            return seriesW;
        case 3:
            return seriesUV;
        case 4:
            return seriesUW;
        case 5:
            return seriesVW;
        default:
            throw InvalidArgument();
    }
}

const STimeSeries& SAdvProbe::Series(int kind) const {
    return const_cast<SAdvProbe*>(this)->Series(kind);
}

void SAdvProbesArray::Serialize(Archive& archive) {
    serializeItems(archive, archive.count(items().size(), kSmallestProbe));
}

}  // namespace vorlan
