#pragma once

#include <iosfwd>

#include "export/ExportOptions.h"
#include "model/Printable.h"
#include "model/SAdvSet.h"

// What stands behind the rows of the export table, in their order.

namespace vorlan {

/// The working velocities, one row per sample that counts: U, V, W in cm/s with two decimals; with time values the
/// sample's index times the sampling interval before them.
void writeVelocities(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// The band moments, one row per band: means, variances, skewness and kurtosis, each of U, V, W; with time values the
/// time of the band before them.
void writeStationarity(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// The histograms, one row per grade: the densities of U, V, W; with time values each behind the centre of its grade.
void writeHistograms(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// Table of the velocity moments of one probe, computed from its working samples that count.
void writeStatisticsTable(std::ostream& stream, const ExportSource& source);

/// The moments of every probe of every file, a block of rows each.
void writeStatisticsOfAll(std::ostream& stream, const SAdvSet& set);

/// Table of the moments of the stresses of one probe; a probe without stresses gets them formed for the export only.
void writeStressStatisticsTable(std::ostream& stream, const ExportSource& source);

/// The spectral functions, one row per lag: for U, V, W in turn the correlation divided by the variance of the series,
/// the spectrum and the structure function. With time values lag time and frequency come first; then, and only between
/// blanks, the spectra have seven decimals instead of four.
void writeSpectral(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// Table of dissipation rate, integral scales, Kolmogorov's micro-scale and mean turbulent acceleration of one probe.
/// Without a positive dissipation rate it has no rows.
void writeScalesTable(std::ostream& stream, const ExportSource& source);

/// The same of every probe of every file, a block of rows each.
void writeScalesOfAll(std::ostream& stream, const SAdvSet& set);

/// The stress series u'v', u'w', v'w', (cm/s)^2 with three decimals, one row per sample that counts; with time values
/// the sample's index times the sampling interval before them. A probe without stresses gets them formed for the
/// export only. Without time values, rows between tabs have no line end.
void writeStresses(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// The cross-spectral functions, one row per phase: for u'v', u'w', v'w' the squared amplitudes C^2 + Q^2, then the
/// coherences, then the phases; with time values lag time and frequency before them.
void writeCrossSpectral(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// Contribution rates of quadrants 1..4 and the hole, one row per hole size; with time values the hole size first.
void writeContributions(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// Fractional times in the same shape.
void writeTimes(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// Averaged patterns, one row per lag, negative lags first: both components around the ejections, then around the
/// sweeps; with time values the lag first.
void writePatterns(std::ostream& stream, const ExportSource& source, const ExportOptions& options);

/// Calls block with every probe of every file, in order.
template <class Block>
void forEachProbe(const SAdvSet& set, Block block) {
    for (const SAdvFile& file : set.files) {
        const std::string name = nameForFiles(file.fileName);
        int position = 1;
        for (const SAdvProbe& probe : file.probes) {
            block(ExportSource{name, position, probe});
            ++position;
        }
    }
}

}  // namespace vorlan
