#include "export/Writers.h"

#include "analysis/Stresses.h"
#include "export/FormedStresses.h"
#include "export/RowWriter.h"

namespace vorlan {

void writeStresses(std::ostream& stream, const ExportSource& source, const ExportOptions& options) {
    const SAdvProbe& probe = source.probe;
    RowWriter rows(stream, options.separator);
    if (options.header) {
        writeHeader(rows, FileLabel::Capitals, source, "STRESSES (u'v', u'w', v'w'):\n");
    }
    const FormedStresses stresses(probe);
    // One of the six row formats has no line end: its values run on.
    const char* const lineEnd = !options.time && options.separator == Separator::Tab ? "" : "\n";
    for (int i = 0; i < stresses.pair(0).GetSize(); ++i) {
        if (!probe.Counts(i)) {
            continue;
        }
        if (options.time) {
            rows.value(i * probe.samplingInterval, 3);
        }
        for (int pair = 0; pair < kStressPairs; ++pair) {
            rows.value(stresses.pair(pair).GetValue(i), 3);
        }
        rows.end(lineEnd);
    }
    rows.finish();
}

}  // namespace vorlan
