#include "export/Writers.h"

#include <array>
#include <ostream>

#include "analysis/ProbeMoments.h"
#include "export/FormedStresses.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr const char* kRule = "-----------------------------------------------\n";

/// What differs between the tables of the velocities and of the stresses.
struct TableTexts {
    const char* title;
    const char* units;
    std::array<const char*, 3> rows;
};

void writeTable(std::ostream& stream, const ExportSource& source, const TableTexts& texts,
                const std::array<Moments, 3>& moments) {
    stream << formatted("File: %s, Probe %d\n\n", source.fileName.c_str(), source.position) << texts.title << kRule
           << "    |  Mean  |  Variance  | Skewness | Kurtosis\n"
           << texts.units << "----+--------+------------+----------+---------\n";
    for (std::size_t i = 0; i < moments.size(); ++i) {
        const Moments& m = moments[i];
        stream << texts.rows[i]
               << formatted("| %6.2f | %10.2f | %8.3f | %7.3f\n", m.mean, m.variance, m.skewness, m.kurtosis);
    }
    stream << kRule;
}

}  // namespace

void writeStatisticsTable(std::ostream& stream, const ExportSource& source) {
    writeTable(stream, source,
               {"Table:  Univariate Statistical Characteristics\n\n",
                "    |  cm/s  |  (cm/s)^2  |          |         \n",
                {"  u ", "  v ", "  w "}},
               probeMoments(source.probe));
}

void writeStatisticsOfAll(std::ostream& stream, const SAdvSet& set) {
    stream << "Univariate statistics (mean, variance, skewness and kurtosis) :\n";
    forEachProbe(set, [&stream](const ExportSource& source) {
        const auto [u, v, w] = probeMoments(source.probe);
        // The three rows are spaced differently.
        stream << formatted("File: %s, Probe %d : \n", source.fileName.c_str(), source.position)
               << formatted("  u   %6.2f  %10.2f  %8.3f  %7.3f\n", u.mean, u.variance, u.skewness, u.kurtosis)
               << formatted("  v   %6.2f   %10.2f  %8.3f  %7.3f\n", v.mean, v.variance, v.skewness, v.kurtosis)
               << formatted("  w   %6.2f   %10.2f   %8.3f   %7.3f\n", w.mean, w.variance, w.skewness, w.kurtosis);
    });
}

void writeStressStatisticsTable(std::ostream& stream, const ExportSource& source) {
    const FormedStresses stresses(source.probe);
    const std::array<Moments, 3> moments =
        countedMoments(source.probe, {&stresses.pair(0), &stresses.pair(1), &stresses.pair(2)});
    writeTable(stream, source,
               {"Table: Statistical Characteristics of Stresses\n\n",
                "    |(cm/s)^2|  (cm/s)^4  |          |         \n",
                {"u'v'", "u'w'", "v'w'"}},
               moments);
}

}  // namespace vorlan
