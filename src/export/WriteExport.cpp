#include "export/WriteExport.h"

#include "export/CrossSpectralExport.h"
#include "export/HistogramsExport.h"
#include "export/QuadrantExport.h"
#include "export/ScalesTable.h"
#include "export/SpectralExport.h"
#include "export/StationarityExport.h"
#include "export/StatisticsTable.h"
#include "export/StressesExport.h"
#include "export/VelocitiesExport.h"

namespace vorlan {

namespace {

using Writer = void (*)(std::ostream&, const ExportSource&, const ExportOptions&);

/// A table knows no options.
template <void (*writeTable)(std::ostream&, const ExportSource&)>
void withoutOptions(std::ostream& stream, const ExportSource& source, const ExportOptions&) {
    writeTable(stream, source);
}

Writer writerOfOne(ExportKind kind) {
    switch (kind) {
        case ExportKind::Velocities:
            return writeVelocities;
        case ExportKind::Stationarity:
            return writeStationarity;
        case ExportKind::Histograms:
            return writeHistograms;
        case ExportKind::Statistics:
            return withoutOptions<writeStatisticsTable>;
        case ExportKind::Spectral:
            return writeSpectral;
        case ExportKind::Scales:
            return withoutOptions<writeScalesTable>;
        case ExportKind::Stresses:
            return writeStresses;
        case ExportKind::StressStatistics:
            return withoutOptions<writeStressStatisticsTable>;
        case ExportKind::CrossSpectral:
            return writeCrossSpectral;
        case ExportKind::Contributions:
            return writeContributions;
        case ExportKind::Times:
            return writeTimes;
        case ExportKind::Patterns:
            return writePatterns;
    }
    throw InvalidArgument();
}

}  // namespace

void writeExport(std::ostream& stream, ExportKind kind, const ExportJob& job) {
    if (job.all && kind == ExportKind::Statistics) {
        return writeStatisticsOfAll(stream, job.set);
    }
    if (job.all && kind == ExportKind::Scales) {
        return writeScalesOfAll(stream, job.set);
    }
    const SAdvFile& file = job.set.files.GetAt(job.file);
    const ExportSource source{file.fileName, job.probe + 1, file.probes.GetAt(job.probe)};
    writerOfOne(kind)(stream, source, job.options);
}

}  // namespace vorlan
