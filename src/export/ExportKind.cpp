#include "export/ExportKind.h"

#include "export/Writers.h"
#include "model/Index.h"

namespace vorlan {

namespace {

/// A table knows no options.
template <void (*writeTable)(std::ostream&, const ExportSource&)>
void table(std::ostream& stream, const ExportSource& source, const ExportOptions&) {
    writeTable(stream, source);
}

}  // namespace

const std::array<ExportKindInfo, kExportKindCount>& exportKinds() {
    using enum ExportKind;
    constexpr auto kAlways = std::nullopt;
    constexpr ExportDialog kOptions = ExportDialog::Options;
    static const std::array<ExportKindInfo, kExportKindCount> kinds = {{
        {Velocities, "velocities", "&Time Series...", "Write the velocities as text", "vel.dat", kAlways, kOptions,
         writeVelocities},
        {Stationarity, "stationarity", "&Stationarity Analysis Results...", "Write the moments of the bands as text",
         "stat.dat", DoneMark::Stationarity, kOptions, writeStationarity},
        {Histograms, "histograms", "&Histograms...", "Write the velocity histograms as text", "hist.dat",
         DoneMark::Histograms, kOptions, writeHistograms},
        {Statistics, "statistics", "Stat&istics...", "Write the table of univariate statistics", "table_1.dat", kAlways,
         ExportDialog::Scope, table<writeStatisticsTable>, writeStatisticsOfAll},
        {Spectral, "spectral", "Spectral &Analysis Results...",
         "Write correlation, spectra and structure functions as text", "spectral.dat", DoneMark::Spectral, kOptions,
         writeSpectral},
        {Scales, "scales", "&Dis. Rate and Scales...", "Write the table of dissipation rate and turbulence scales",
         "tbl_rs.dat", kAlways, ExportDialog::Scope, table<writeScalesTable>, writeScalesOfAll},
        {Stresses, "stresses", "St&resses Time Series...", "Write the stress series as text", "stress.dat", kAlways,
         kOptions, writeStresses},
        {StressStatistics, "stress-statistics", "Str&esses Statistics...", "Write the table of stress statistics",
         "table_2.dat", kAlways, ExportDialog::None, table<writeStressStatisticsTable>},
        {CrossSpectral, "cross-spectral", "&Cross-Spectral Analysis Results...",
         "Write cross-spectra, coherence and phase as text", "cr_sp.dat", DoneMark::CrossSpectral, kOptions,
         writeCrossSpectral},
        {Contributions, "contributions", "C&ontribution Rates...", "Write the contribution rates by hole size as text",
         "rs_rates.dat", DoneMark::Quadrants, kOptions, writeContributions},
        {Times, "times", "&Fractional Times...", "Write the fractional times by hole size as text", "fr_times.dat",
         DoneMark::Quadrants, kOptions, writeTimes},
        {Patterns, "patterns", "Averaged Velocity &Patterns...", "Write the averaged event patterns as text",
         "patterns.dat", DoneMark::Quadrants, kOptions, writePatterns},
    }};
    return kinds;
}

const ExportKindInfo& exportKindInfo(ExportKind kind) {
    return exportKinds().at(asSize(kind));
}

void writeExport(std::ostream& stream, ExportKind kind, const ExportJob& job) {
    const ExportKindInfo& info = exportKindInfo(kind);
    if (job.all && info.writeAll != nullptr) {
        return info.writeAll(stream, job.set);
    }
    const SAdvFile& file = job.set.files.GetAt(job.file);
    const std::string name = nameForFiles(file.fileName);
    info.write(stream, {name, job.probe + 1, file.probes.GetAt(job.probe)}, job.options);
}

}  // namespace vorlan
