#include "export/WriteExport.h"

#include "export/SpectralExport.h"
#include "export/VelocitiesExport.h"

namespace vorlan {

namespace {

using SeriesWriter = void (*)(std::ostream&, const ExportSource&, const ExportOptions&);

// The writers of one probe; the tables choose by scope.
SeriesWriter seriesWriter(ExportKind kind) {
    switch (kind) {
        case ExportKind::Velocities:
            return writeVelocities;
        case ExportKind::Spectral:
            return writeSpectral;
        default:
            throw InvalidArgument();
    }
}

}  // namespace

void writeExport(std::ostream& stream, ExportKind kind, const ExportJob& job) {
    const SAdvFile& file = job.set.files.GetAt(job.file);
    const ExportSource source{file.fileName, job.probe + 1, file.probes.GetAt(job.probe)};
    seriesWriter(kind)(stream, source, job.options);
}

}  // namespace vorlan
