#include "export/Writers.h"

#include <array>

#include "analysis/ResultAxes.h"
#include "export/RowWriter.h"
#include "model/Index.h"

namespace vorlan {

void writeHistograms(std::ostream& stream, const ExportSource& source, const ExportOptions& options) {
    RowWriter rows(stream, options.separator);
    if (options.header) {
        writeHeader(rows, FileLabel::Capitalised, source, "VELOCITY HISTOGRAMS:\n");
    }
    std::array<std::vector<double>, SAdvProbe::kComponents> centres;
    for (int c = 0; c < SAdvProbe::kComponents; ++c) {
        centres[asSize(c)] = gradeCentres(source.probe.Series(c));
    }
    for (int k = 0; k < source.probe.seriesU.histogram.GetSize(); ++k) {
        for (int c = 0; c < SAdvProbe::kComponents; ++c) {
            const double density = source.probe.Series(c).histogram.GetValue(k);
            if (options.time) {
                rows.value(centres[asSize(c)][asSize(k)], 2);
            }
            rows.value(density, 2);
        }
        rows.end();
    }
    rows.finish();
}

}  // namespace vorlan
