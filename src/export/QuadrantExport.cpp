#include "export/Writers.h"

#include "analysis/ResultAxes.h"
#include "export/RowWriter.h"

namespace vorlan {

namespace {

void writeShares(std::ostream& stream, const ExportSource& source, const ExportOptions& options,
                 const SMultiArray& shares, std::string_view title) {
    RowWriter rows(stream, options.separator);
    if (options.header) {
        writeHeader(rows, FileLabel::Capitalised, source, title);
    }
    const double increment = holeIncrementOf(source.probe, options.holeIncrement);
    for (int h = 0; h < SAdvProbe::ColumnLength(shares); ++h) {
        if (options.time) {
            rows.value(h * increment, 2);
        }
        for (const SArray& bucket : shares) {
            rows.value(bucket.GetValue(h), 2);
        }
        rows.end();
    }
    rows.finish();
}

}  // namespace

void writeContributions(std::ostream& stream, const ExportSource& source, const ExportOptions& options) {
    writeShares(stream, source, options, source.probe.Contributions(),
                "HOLE SIZE AND CONTRIBUTION RATES TO STRESSES (Quadrants: 1,2,3,4 and all):\n");
}

void writeTimes(std::ostream& stream, const ExportSource& source, const ExportOptions& options) {
    writeShares(stream, source, options, source.probe.ContributionTimes(),
                "HOLE SIZE AND FRACTIONAL TIMES (Quadrants: 1,2,3,4 and all):\n");
}

void writePatterns(std::ostream& stream, const ExportSource& source, const ExportOptions& options) {
    const SMultiArray& ejection = source.probe.EjectionPattern();
    const SMultiArray& sweep = source.probe.SweepPattern();
    RowWriter rows(stream, options.separator);
    if (options.header) {
        writeHeader(rows, FileLabel::Capitalised, source, "VELOCITY Patterns (Ejection pare, Sweep pare):\n");
    }
    const int lags = SAdvProbe::ColumnLength(ejection);
    for (int i = 0; i < lags; ++i) {
        if (options.time) {
            rows.value(patternLag(i, lags, source.probe.samplingInterval), 2);
        }
        for (const SMultiArray* pattern : {&ejection, &sweep}) {
            for (const SArray& component : *pattern) {
                rows.value(component.GetValue(i), 2);
            }
        }
        rows.end();
    }
    rows.finish();
}

}  // namespace vorlan
