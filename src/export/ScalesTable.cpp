#include "export/Writers.h"

#include <ostream>

#include "analysis/TurbulenceScales.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr const char* kRule = "---------------------------------------------------------------------\n";

double dissipationRate(const SAdvProbe& probe) {
    return probe.resultBlock[SAdvProbe::kDissipationRate];
}

double timeScale(const SAdvProbe& probe, std::size_t component) {
    return probe.resultBlock[SAdvProbe::kTimeScales + component];
}

}  // namespace

void writeScalesTable(std::ostream& stream, const ExportSource& source) {
    const SAdvProbe& probe = source.probe;
    const double rate = dissipationRate(probe);
    stream << formatted("File: %s, Probe %d\n\n", source.fileName.c_str(), source.position)
           << "Table:  Dissipation Rate and Turbulence Scales\n\n"
           << kRule << "    |  Dis. Rate, |  Integral  | Kolmogorov's    | Mean Turbulent  \n"
           << "    |  cm^2/s^3   |  Scale, s  | micro-scale, cm | Acceleration a/g\n"
           << "----+-------------+------------+-----------------+-------------------\n";
    if (rate > 0.0) {
        stream << formatted("  u |%10.5f   |%8.2f    |   %8.3f      |     %7.3f\n", rate, timeScale(probe, 0),
                            kolmogorovMicroScale(rate), turbulentAcceleration(rate))
               << formatted("  v |             |%8.2f    |                 |\n", timeScale(probe, 1))
               << formatted("  w |             |%8.2f    |                 |\n", timeScale(probe, 2));
    }
    stream << kRule;
}

void writeScalesOfAll(std::ostream& stream, const SAdvSet& set) {
    stream << "Dissipation Rate and Turbulence Scales (dis. rate, int. scale, Kolmogorov's scale, mean acceleration) "
              ":\n\n";
    forEachProbe(set, [&stream](const ExportSource& source) {
        const SAdvProbe& probe = source.probe;
        const double rate = dissipationRate(probe);
        stream << formatted("File: %s, Probe %d\n", source.fileName.c_str(), source.position);
        if (rate > 0.0) {
            stream << formatted("  u  %10.5f    %8.2f        %8.3f            %7.3f\n", rate, timeScale(probe, 0),
                                kolmogorovMicroScale(rate), turbulentAcceleration(rate))
                   << formatted("  v                %8.2f                      \n", timeScale(probe, 1))
                   << formatted("  w                %8.2f                      \n", timeScale(probe, 2));
        }
    });
}

}  // namespace vorlan
