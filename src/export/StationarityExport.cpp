#include "export/Writers.h"

#include "analysis/ResultAxes.h"
#include "export/RowWriter.h"
#include "model/Index.h"

namespace vorlan {

void writeStationarity(std::ostream& stream, const ExportSource& source, const ExportOptions& options) {
    const SAdvProbe& probe = source.probe;
    RowWriter rows(stream, options.separator);
    if (options.header) {
        writeHeader(rows, FileLabel::Capitals, source,
                    "STATIONARITY RESULTS (Mean (U,V,W), Var.(u,v,w), Sk (u,v,w), Kr (u,v,w) :\n");
    }
    const std::vector<double> times = bandTimes(probe.seriesU, probe.bandMode, probe.samplingInterval);
    const char* const lineEnd = options.time && options.separator == Separator::Space ? " \n" : "\n";
    for (int k = 0; k < probe.seriesU.bandMeans.GetSize(); ++k) {
        if (options.time) {
            rows.value(times[asSize(k)], 2);
        }
        for (const auto moment : {&STimeSeries::bandMeans, &STimeSeries::bandVariances, &STimeSeries::bandSkewness,
                                  &STimeSeries::bandKurtosis}) {
            for (const STimeSeries* series : {&probe.seriesU, &probe.seriesV, &probe.seriesW}) {
                rows.value((series->*moment).GetValue(k), 2);
            }
        }
        rows.end(lineEnd);
    }
    rows.finish();
}

}  // namespace vorlan
