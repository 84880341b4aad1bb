#include "analysis/ImportedProbe.h"

#include <algorithm>
#include <cmath>

#include "model/Index.h"

namespace vorlan {

namespace {

using Column = RecordColumns::Column;

constexpr double kOtherResolution = 0.001;

void store(SMultiArray& table, std::initializer_list<std::vector<double>> columns, double resolution) {
    table.Reshape(asInt(columns.size()), resolution);
    int c = 0;
    for (const std::vector<double>& values : columns) {
        table.ElementAt(c++).StoreValues(values);
    }
}

std::vector<double> bridged(const RecordColumns& record, Column column) {
    std::vector<double> values = record.values[column];
    bridgeGaps(values);
    return values;
}

std::vector<double> scores(const RecordColumns& record, Column column, double absent) {
    if (!record.has(column)) {
        return std::vector<double>(record.sampleCount(), absent);
    }
    std::vector<double> values = record.values[column];
    std::replace_if(
        values.begin(), values.end(), [](double v) { return std::isnan(v); }, 0.0);
    return values;
}

void check(const RecordColumns& record, const ImportSettings& settings) {
    if (!(settings.samplingInterval > 0.0) || !(settings.resolution > 0.0)) {
        throw InvalidArgument();
    }
    for (std::size_t c = 0; c < RecordColumns::kColumns; ++c) {
        const std::size_t length = record.values[c].size();
        if (length != record.sampleCount() && (length != 0 || c <= RecordColumns::W)) {
            throw InvalidArgument();
        }
    }
}

}  // namespace

void bridgeGaps(std::vector<double>& values) {
    const std::size_t size = values.size();
    std::size_t before = size;  // the last value that is there; size while there is none
    for (std::size_t i = 0; i < size; ++i) {
        if (std::isnan(values[i])) {
            continue;
        }
        if (before == size) {
            std::fill(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(i), values[i]);
        } else {
            const double rise = values[i] - values[before];
            const auto span = static_cast<double>(i - before);
            for (std::size_t gap = before + 1; gap < i; ++gap) {
                values[gap] = values[before] + rise * static_cast<double>(gap - before) / span;
            }
        }
        before = i;
    }
    if (before == size && size > 0) {
        throw InvalidArgument();
    }
    for (std::size_t i = before + 1; i < size; ++i) {
        values[i] = values[before];
    }
}

SAdvProbe importedProbe(const RecordColumns& record, const ImportSettings& settings) {
    check(record, settings);
    SAdvProbe probe;
    probe.probeNumber = settings.probeNumber;
    probe.samplingInterval = settings.samplingInterval;
    probe.SetPosition(settings.position);
    auto& tables = probe.sampledTables;
    store(tables[SAdvProbe::kVelocities],
          {bridged(record, Column::U), bridged(record, Column::V), bridged(record, Column::W)}, settings.resolution);
    store(tables[SAdvProbe::kCorrelation],
          {scores(record, Column::Cor1, kAbsentCorrelation), scores(record, Column::Cor2, kAbsentCorrelation),
           scores(record, Column::Cor3, kAbsentCorrelation)},
          kOtherResolution);
    store(tables[SAdvProbe::kSignalToNoise],
          {scores(record, Column::Snr1, kAbsentSignalToNoise), scores(record, Column::Snr2, kAbsentSignalToNoise),
           scores(record, Column::Snr3, kAbsentSignalToNoise)},
          kOtherResolution);
    if (record.has(Column::Heading)) {
        store(tables[SAdvProbe::kSampledCompass],
              {bridged(record, Column::Heading), bridged(record, Column::Pitch), bridged(record, Column::Roll)},
              kOtherResolution);
    }
    if (record.has(Column::Pressure)) {
        store(tables[SAdvProbe::kSampledPressure], {bridged(record, Column::Pressure)}, kOtherResolution);
    }
    probe.Reset();
    for (std::size_t i = 0; i < record.sampleCount(); ++i) {
        if (record.valid[i] == 0) {
            probe.sampleFlags.SetAt(asInt(i), 0);
        }
    }
    finishNewProbe(probe);
    return probe;
}

}  // namespace vorlan
