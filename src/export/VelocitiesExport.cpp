#include "export/Writers.h"

#include "export/RowWriter.h"

namespace vorlan {

void writeVelocities(std::ostream& stream, const ExportSource& source, const ExportOptions& options) {
    RowWriter rows(stream, options.separator);
    if (options.header) {
        writeHeader(rows, FileLabel::Capitals, source, "VELOCITIES (U, V, W):\n");
    }
    const SAdvProbe& probe = source.probe;
    const SMultiArray& velocities = probe.Velocities();
    const int samples = probe.WorkingSamples();
    for (int i = 0; i < samples; ++i) {
        if (!probe.Counts(i)) {
            continue;
        }
        if (options.time) {
            rows.value(i * probe.samplingInterval, 2);
        }
        for (int c = 0; c < SAdvProbe::kComponents; ++c) {
            rows.value(velocities.GetAt(c).GetValue(i), 2);
        }
        rows.end();
    }
    rows.finish();
}

}  // namespace vorlan
