#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <sstream>

#include "analysis/AnalysedSeries.h"
#include "analysis/CrossSpectralAnalysis.h"
#include "analysis/Histogram.h"
#include "analysis/Quadrants.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/Stationarity.h"
#include "analysis/StressRecord.h"
#include "analysis/Stresses.h"
#include "export/WriteExport.h"

namespace vorlan {
namespace {

using Rows = std::vector<std::vector<double>>;

/// The values put into the conversions of a printf format, one by one.
std::string printed(const std::string& format, const std::vector<double>& values) {
    std::string line;
    std::size_t next = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%') {
            line += format[i];
            continue;
        }
        const std::size_t end = format.find('f', i);
        char number[400];
        std::snprintf(number, sizeof number, format.substr(i, end - i + 1).c_str(), values.at(next));
        line += number;
        ++next;
        i = end;
    }
    EXPECT_EQ(next, values.size());
    return line;
}

/// Row formats of one export: with and without time values, each for blank, tab and comma.
struct Formats {
    std::array<std::string, 3> withTime;
    std::array<std::string, 3> plain;

    /// From the formats for blanks, which the other separators replace.
    Formats(const std::string& timeFormat, const std::string& plainFormat) {
        for (std::size_t s = 0; s < 3; ++s) {
            withTime[s] = timeFormat;
            plain[s] = plainFormat;
            std::replace(withTime[s].begin(), withTime[s].end(), ' ', " \t,"[s]);
            std::replace(plain[s].begin(), plain[s].end(), ' ', " \t,"[s]);
        }
    }
};

/// A record with the results of every stage, second probe of the file "flume.adv".
class ResultExports : public testing::Test {
  protected:
    ResultExports() : probe_(stress_test::correlatedProbe(205, -0.4)) {
        NoProgress silent;
        analyseStationarity(probe_, {BandMode::Fixed, 10}, silent);
        analyseDistributions(probe_, {}, silent);
        analyseSpectra(probe_, {24, 1, 0}, silent);
        analyseCrossSpectra(probe_, silent);
        analyseQuadrants(probe_, {0.25, 5.0, 0.5, 0.5, 0.4, 1}, silent);
    }

    std::string exported(ExportKind kind, const ExportOptions& options) const {
        SAdvSet set;
        SAdvFile file;
        file.fileName = "flume.adv";
        file.probes.Add(SAdvProbe());
        file.probes.Add(probe_);
        set.files.Add(SAdvFile());
        set.files.Add(file);
        std::ostringstream stream;
        writeExport(stream, kind, {set, 1, 1, options, false});
        return stream.str();
    }

    /// Every combination of header, time values and separator. Rows hold the leading columns of the time values too:
    /// those of their indexes in timeColumns.
    void expectRows(ExportKind kind, const std::string& header, const Formats& formats, const Rows& rows,
                    const std::vector<std::size_t>& timeColumns) const {
        ASSERT_FALSE(rows.empty());
        for (const bool withHeader : {false, true}) {
            for (const bool time : {false, true}) {
                for (int separator = 0; separator < 3; ++separator) {
                    std::string expected = withHeader ? header : "";
                    const auto s = static_cast<std::size_t>(separator);
                    for (const std::vector<double>& row : rows) {
                        std::vector<double> values;
                        for (std::size_t i = 0; i < row.size(); ++i) {
                            const bool ofTime = std::count(timeColumns.begin(), timeColumns.end(), i) > 0;
                            if (time || !ofTime) {
                                values.push_back(row[i]);
                            }
                        }
                        expected += printed(time ? formats.withTime[s] : formats.plain[s], values);
                    }
                    ExportOptions options;
                    options.header = withHeader;
                    options.time = time;
                    options.separator = static_cast<Separator>(separator);
                    EXPECT_EQ(exported(kind, options), expected)
                        << "header " << withHeader << " time " << time << " separator " << separator;
                }
            }
        }
    }

    static double at(const SArray& column, int i) { return column.GetAt(i) * column.GetScale(); }

    SAdvProbe probe_;
};

TEST_F(ResultExports, Stationarity) {
    for (const BandMode mode : {BandMode::Fixed, BandMode::Cumulative}) {
        NoProgress silent;
        analyseStationarity(probe_, {mode, 10}, silent);
        Rows rows;
        for (int k = 0; k < 10; ++k) {
            // 205 samples make bands of 20.
            std::vector<double>& row = rows.emplace_back();
            row.push_back((mode == BandMode::Fixed ? k + 0.5 : k + 1.0) * 20 * 0.04);
            for (const auto column : {&STimeSeries::bandMeans, &STimeSeries::bandVariances, &STimeSeries::bandSkewness,
                                      &STimeSeries::bandKurtosis}) {
                for (int c = 0; c < 3; ++c) {
                    row.push_back(at(probe_.Series(c).*column, k));
                }
            }
        }
        const std::string twelve = "%.2f %.2f %.2f %.2f %.2f %.2f %.2f %.2f %.2f %.2f %.2f %.2f";
        Formats formats("%.2f " + twelve + "\n", twelve + "\n");
        formats.withTime[0] = "%.2f " + twelve + " \n";
        expectRows(ExportKind::Stationarity,
                   "FILE  : flume.adv\nPROBE : 2\n"
                   "STATIONARITY RESULTS (Mean (U,V,W), Var.(u,v,w), Sk (u,v,w), Kr (u,v,w) :\n",
                   formats, rows, {0});
    }
}

TEST_F(ResultExports, Histograms) {
    Rows rows(20);
    for (int c = 0; c < 3; ++c) {
        const SArray& values = probe_.workTables[0].GetAt(c);
        const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
        const double minimum = *lowest * values.GetScale();
        const double width = (*highest * values.GetScale() - minimum) / 20;
        for (int k = 0; k < 20; ++k) {
            rows[static_cast<std::size_t>(k)].push_back(minimum + (k + 0.5) * width);
            rows[static_cast<std::size_t>(k)].push_back(at(probe_.Series(c).histogram, k));
        }
    }
    expectRows(ExportKind::Histograms, "File  : flume.adv\nPROBE : 2\nVELOCITY HISTOGRAMS:\n",
               Formats("%.2f %.2f %.2f %.2f %.2f %.2f\n", "%.2f %.2f %.2f\n"), rows, {0, 2, 4});
}

TEST_F(ResultExports, Stresses) {
    probe_.useAllSamples = 0;
    probe_.sampleFlags.SetAt(0, 0);
    probe_.sampleFlags.SetAt(77, -1);
    const auto fluctuations = stress_test::fluctuationsOf(probe_);
    Rows rows;
    for (std::size_t j = 0; j < 205; ++j) {
        if (j == 0 || j == 77) {
            continue;
        }
        std::vector<double>& row = rows.emplace_back();
        row.push_back(static_cast<double>(j) * 0.04);
        for (int pair = 0; pair < 3; ++pair) {
            const double product = fluctuations[static_cast<std::size_t>(stress_test::kFirst[pair])][j] *
                                   fluctuations[static_cast<std::size_t>(stress_test::kSecond[pair])][j];
            row.push_back(stress_test::held(product, 0.1) * 0.1);
        }
    }
    Formats formats("%.3f %.3f %.3f %.3f\n", "%.3f %.3f %.3f\n");
    formats.plain[1] = "%.3f\t%.3f\t%.3f";
    const std::string header = "FILE  : flume.adv\nPROBE : 2\nSTRESSES (u'v', u'w', v'w'):\n";
    expectRows(ExportKind::Stresses, header, formats, rows, {0});
    // The same for a probe that has none, which keeps none.
    probe_.workTables[SAdvProbe::kStresses].RemoveAll();
    expectRows(ExportKind::Stresses, header, formats, rows, {0});
    EXPECT_TRUE(probe_.workTables[SAdvProbe::kStresses].IsEmpty());
}

TEST_F(ResultExports, CrossSpectra) {
    for (const int unit : {0, 1}) {
        NoProgress silent;
        analyseSpectra(probe_, {24, 1, unit}, silent);
        analyseCrossSpectra(probe_, silent);
        Rows rows;
        double lag = 0.0;
        double frequency = 0.0;
        for (int i = 0; i < 23; ++i) {
            std::vector<double>& row = rows.emplace_back(std::vector<double>{lag, frequency});
            for (int pair = 0; pair < 3; ++pair) {
                const double c = at(probe_.workTables[8].GetAt(pair), i);
                const double q = at(probe_.workTables[9].GetAt(pair), i);
                row.push_back(c * c + q * q);
            }
            for (const std::size_t table : {5U, 4U}) {
                for (int pair = 0; pair < 3; ++pair) {
                    row.push_back(at(probe_.stageTables[table].GetAt(pair), i));
                }
            }
            lag += 0.04;
            frequency += unit == 0 ? 1.0 / (2.0 * 24 * 0.04) : 3.14 / (24 * 0.04);
        }
        const std::string nine = "%.4f %.4f %.4f %.4f %.4f %.4f %.4f %.4f %.4f\n";
        expectRows(ExportKind::CrossSpectral,
                   std::string("File  : flume.adv\nPROBE : 2\nCROSS-SPECTRAL CHARACTERISTICS\n"
                               "FIRST TWO COLUMNS ARE TIME LAGS AND THIRD IS FREQUENCY\n") +
                       (unit == 0 ? "FREQUENCY UNITS:  HZ\n" : "FREQUENCY UNITS:  RAD/SEC\n") +
                       "FUNCTIONS: CROSS-SPECTRA, COHERENCE, PHASE (u'v',u'w',v'w')\n",
                   Formats("%.2f %.3f " + nine, nine), rows, {0, 1});
    }
}

TEST_F(ResultExports, ContributionsAndTimes) {
    for (const std::size_t table : {0U, 1U}) {
        Rows rows;
        for (int h = 0; h < 20; ++h) {
            std::vector<double>& row = rows.emplace_back(std::vector<double>{h * 0.25});
            for (int q = 0; q < 5; ++q) {
                row.push_back(at(probe_.stageTables[table].GetAt(q), h));
            }
        }
        const char* const title = table == 0
                                      ? "HOLE SIZE AND CONTRIBUTION RATES TO STRESSES (Quadrants: 1,2,3,4 and all):\n"
                                      : "HOLE SIZE AND FRACTIONAL TIMES (Quadrants: 1,2,3,4 and all):\n";
        expectRows(table == 0 ? ExportKind::Contributions : ExportKind::Times,
                   std::string("File  : flume.adv\nPROBE : 2\n") + title,
                   Formats("%.2f %.2f %.2f %.2f %.2f %.2f\n", "%.2f %.2f %.2f %.2f %.2f\n"), rows, {0});
    }
}

TEST_F(ResultExports, HoleSizesOfAnUnrecordedRunAreTheWorkspaces) {
    ExportOptions options;
    options.time = true;
    options.separator = Separator::Comma;
    options.holeIncrement = 1.5;
    for (const double recorded : {0.0, std::nan("")}) {
        probe_.statistics[SAdvProbe::kQuadrantRun] = recorded;
        const std::string text = exported(ExportKind::Times, options);
        EXPECT_EQ(text.substr(text.find('\n') + 1, 5), "1.50,");
    }
}

TEST_F(ResultExports, Patterns) {
    Rows rows;
    for (int i = 0; i < 21; ++i) {
        std::vector<double>& row = rows.emplace_back(std::vector<double>{(i - 10) * 0.04});
        for (const std::size_t table : {2U, 3U}) {
            for (int c = 0; c < 2; ++c) {
                row.push_back(at(probe_.stageTables[table].GetAt(c), i));
            }
        }
    }
    expectRows(ExportKind::Patterns, "File  : flume.adv\nPROBE : 2\nVELOCITY Patterns (Ejection pare, Sweep pare):\n",
               Formats("%.2f %.2f %.2f %.2f %.2f\n", "%.2f %.2f %.2f %.2f\n"), rows, {0});
}

TEST_F(ResultExports, OfColumnsThatDoNotFitTogetherAreRefused) {
    ExportOptions options;
    for (const bool time : {false, true}) {
        options.time = time;
        probe_.seriesV.histogram = SArray();
        EXPECT_THROW(exported(ExportKind::Histograms, options), InvalidArgument);
        probe_.seriesW.bandKurtosis = SArray();
        EXPECT_THROW(exported(ExportKind::Stationarity, options), InvalidArgument);
        probe_.stageTables[0].ElementAt(4) = SArray();
        EXPECT_THROW(exported(ExportKind::Contributions, options), InvalidArgument);
    }
}

}  // namespace
}  // namespace vorlan
