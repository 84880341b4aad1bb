#include "export/ExportKind.h"

#include "model/SAdvProbe.h"

namespace vorlan {

const std::array<ExportKindInfo, kExportKindCount>& exportKinds() {
    using enum ExportKind;
    constexpr auto kAlways = std::nullopt;
    constexpr ExportDialog kOptions = ExportDialog::Options;
    static const std::array<ExportKindInfo, kExportKindCount> kinds = {{
        {Velocities, "velocities", "&Time Series...", "vel.dat", kAlways, kOptions},
        {Stationarity, "stationarity", "&Stationarity Analysis Results...", "stat.dat", DoneMark::Stationarity,
         kOptions},
        {Histograms, "histograms", "&Histograms...", "hist.dat", DoneMark::Histograms, kOptions},
        {Statistics, "statistics", "Stat&istics...", "table_1.dat", kAlways, ExportDialog::Scope},
        {Spectral, "spectral", "Spectral &Analysis Results...", "spectral.dat", DoneMark::Spectral, kOptions},
        {Scales, "scales", "&Dis. Rate and Scales...", "tbl_rs.dat", kAlways, ExportDialog::Scope},
        {Stresses, "stresses", "St&resses Time Series...", "stress.dat", kAlways, kOptions},
        {StressStatistics, "stress-statistics", "Str&esses Statistics...", "table_2.dat", kAlways, ExportDialog::None},
        {CrossSpectral, "cross-spectral", "&Cross-Spectral Analysis Results...", "cr_sp.dat", DoneMark::CrossSpectral,
         kOptions},
        {Contributions, "contributions", "C&ontribution Rates...", "rs_rates.dat", DoneMark::Quadrants, kOptions},
        {Times, "times", "&Fractional Times...", "fr_times.dat", DoneMark::Quadrants, kOptions},
        {Patterns, "patterns", "Averaged Velocity &Patterns...", "patterns.dat", DoneMark::Quadrants, kOptions},
    }};
    return kinds;
}

const ExportKindInfo& exportKindInfo(ExportKind kind) {
    return exportKinds().at(static_cast<std::size_t>(kind));
}

std::optional<ExportKind> exportKindNamed(std::string_view name) {
    for (const ExportKindInfo& info : exportKinds()) {
        if (name == info.name) {
            return info.kind;
        }
    }
    return std::nullopt;
}

bool hasResultsFor(ExportKind kind, const SAdvProbe& probe) {
    const std::optional<DoneMark> needs = exportKindInfo(kind).needs;
    return !needs.has_value() || probe.IsDone(*needs);
}

}  // namespace vorlan
