#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <sstream>

#include "export/WriteExport.h"

namespace vorlan {
namespace {

/// Four samples whose moments are short fractions.
SAdvProbe smallProbe() {
    SAdvProbe probe;
    SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    velocities.Reshape(3, 1.0);
    for (const auto& sample : {std::array{0, 0, 8}, {0, 0, 0}, {0, 0, 0}, {4, -4, 0}}) {
        for (int c = 0; c < 3; ++c) {
            velocities.ElementAt(c).Add(sample[static_cast<std::size_t>(c)]);
        }
        probe.sampleFlags.Add(1);
    }
    return probe;
}

SAdvSet setOf(const SAdvProbe& first, const SAdvProbe& second) {
    SAdvSet set;
    SAdvFile river;
    river.fileName = "river.adv";
    river.probes.Add(first);
    river.probes.Add(second);
    SAdvFile flume;
    flume.fileName = "flume.adv";
    flume.probes.Add(first);
    set.files.Add(river);
    set.files.Add(flume);
    return set;
}

std::string table(ExportKind kind, const SAdvSet& set, int file, int probe, bool all) {
    std::ostringstream stream;
    writeExport(stream, kind, {set, file, probe, {}, all});
    return stream.str();
}

TEST(StatisticsTable, OfAllProbes) {
    const std::string rows =
        "  u     1.00        4.00     0.750   -1.688\n"
        "  v    -1.00         4.00    -0.750   -1.688\n"
        "  w     2.00        16.00      0.750    -1.688\n";
    EXPECT_EQ(table(ExportKind::Statistics, setOf(smallProbe(), smallProbe()), -1, -1, true),
              "Univariate statistics (mean, variance, skewness and kurtosis) :\n"
              "File: river.adv, Probe 1 : \n" +
                  rows + "File: river.adv, Probe 2 : \n" + rows + "File: flume.adv, Probe 1 : \n" + rows);
}

TEST(StressStatisticsTable, FormsWhatIsMissing) {
    // u'v' is -1, -1, -1, -9; u'w' -6, 2, 2, -6; v'w' 6, -2, -2, 6.
    char flat[20];
    std::snprintf(flat, sizeof flat, "%7.3f", 1024.0 / (4.0 * (64.0 / 3.0) * (64.0 / 3.0)) - 3.0);
    const SAdvSet set = setOf(smallProbe(), SAdvProbe());
    EXPECT_EQ(table(ExportKind::StressStatistics, set, 1, 0, false),
              std::string("File: flume.adv, Probe 1\n\n"
                          "Table: Statistical Characteristics of Stresses\n\n"
                          "-----------------------------------------------\n"
                          "    |  Mean  |  Variance  | Skewness | Kurtosis\n"
                          "    |(cm/s)^2|  (cm/s)^4  |          |         \n"
                          "----+--------+------------+----------+---------\n"
                          "u'v'|  -3.00 |      16.00 |   -0.750 |  -1.688\n"
                          "u'w'|  -2.00 |      21.33 |    0.000 | ") +
                  flat + "\nv'w'|   2.00 |      21.33 |    0.000 | " + flat +
                  "\n"
                  "-----------------------------------------------\n");
    EXPECT_TRUE(set.files.GetAt(1).probes.GetAt(0).workTables[SAdvProbe::kStresses].IsEmpty());
    EXPECT_EQ(table(ExportKind::StressStatistics, set, 1, 0, true),
              table(ExportKind::StressStatistics, set, 1, 0, false));
}

SAdvProbe scaledProbe(double rate) {
    SAdvProbe probe;
    probe.resultBlock = {rate, 0.51, 1.425, 12.0, 7.0, 8.0, 9.0};
    return probe;
}

TEST(ScalesTable, OfOneProbe) {
    const std::string head =
        "\n\n"
        "Table:  Dissipation Rate and Turbulence Scales\n\n"
        "---------------------------------------------------------------------\n"
        "    |  Dis. Rate, |  Integral  | Kolmogorov's    | Mean Turbulent  \n"
        "    |  cm^2/s^3   |  Scale, s  | micro-scale, cm | Acceleration a/g\n"
        "----+-------------+------------+-----------------+-------------------\n";
    const std::string rule = "---------------------------------------------------------------------\n";
    // (1.01e-6 / 2.5)^(1/4) = 0.02521, 3 sqrt(2.5^3 / 0.0101) / 981 = 0.12028.
    EXPECT_EQ(table(ExportKind::Scales, setOf(scaledProbe(2.5), SAdvProbe()), 0, 0, false),
              "File: river.adv, Probe 1" + head +
                  "  u |   2.50000   |    0.51    |      0.025      |       0.120\n"
                  "  v |             |    1.43    |                 |\n"
                  "  w |             |   12.00    |                 |\n" +
                  rule);
    for (const double rate : {0.0, -1.0, std::nan("")}) {
        EXPECT_EQ(table(ExportKind::Scales, setOf(SAdvProbe(), scaledProbe(rate)), 0, 1, false),
                  "File: river.adv, Probe 2" + head + rule);
    }
}

TEST(ScalesTable, OfAllProbes) {
    const std::string rows =
        "  u     2.50000        0.51           0.025              0.120\n"
        "  v                    1.43                      \n"
        "  w                   12.00                      \n";
    EXPECT_EQ(table(ExportKind::Scales, setOf(scaledProbe(2.5), scaledProbe(0.0)), -1, -1, true),
              "Dissipation Rate and Turbulence Scales (dis. rate, int. scale, Kolmogorov's scale, mean acceleration) "
              ":\n\n"
              "File: river.adv, Probe 1\n" +
                  rows + "File: river.adv, Probe 2\nFile: flume.adv, Probe 1\n" + rows);
}

}  // namespace
}  // namespace vorlan
