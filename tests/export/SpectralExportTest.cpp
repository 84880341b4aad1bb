#include "export/SpectralExport.h"

#include <gtest/gtest.h>

#include <limits>

#include "export/ExportFixture.h"

namespace vorlan {
namespace {

std::string exported(const SAdvProbe& probe, const ExportOptions& options) {
    std::ostringstream stream;
    const std::string name = "C:\\a.adv";
    writeSpectral(stream, {name, 1, probe}, options);
    return stream.str();
}

SAdvProbe randomProbe(int lags, std::uint32_t unit) {
    std::mt19937 random(5);
    SAdvProbe probe;
    probe.samplingInterval = 0.1;
    probe.spectralUnit = unit;
    for (int kind = 0; kind < 3; ++kind) {
        STimeSeries& series = probe.Series(kind);
        series.correlation = test::randomColumn(random, lags, 1e-5);
        series.spectrum = test::randomColumn(random, lags, 1e-7);
        series.structureFunction = test::randomColumn(random, lags, 1e-5);
        series.moments.variance = 1.7 + kind;
    }
    return probe;
}

class SpectralRows : public testing::TestWithParam<std::uint32_t> {};

TEST_P(SpectralRows, EqualPlainPrinting) {
    const int lags = 900;
    const SAdvProbe probe = randomProbe(lags, GetParam());
    const double step = GetParam() == 0 ? 1.0 / (2.0 * lags * 0.1) : 3.14 / (lags * 0.1);
    const std::string unit = GetParam() == 0 ? "HZ" : "RAD/SEC";
    for (const ExportOptions& options : test::allOptions()) {
        std::string expected;
        if (options.header) {
            expected =
                "File  : C:\\a.adv\nPROBE : 1\nSPECTRAL CHARACTERISTICS\n"
                "FIRST COLUMN IS TIME LAG AND SECOND IS FREQUENCY\nFREQUENCY UNITS:  " +
                unit + "\nFUNCTIONS: CORRELATION, SPECTRA, STRUCTURE (U,V,W)\n";
        }
        const bool fine = options.time && options.separator == Separator::Space;
        double lag = 0.0;
        double frequency = 0.0;
        for (int k = 0; k < lags; ++k) {
            std::vector<std::pair<const char*, double>> row;
            if (options.time) {
                row = {{"%.2f", lag}, {"%.3f", frequency}};
            }
            for (int kind = 0; kind < 3; ++kind) {
                const STimeSeries& series = probe.Series(kind);
                row.emplace_back("%.4f", series.correlation.GetAt(k) * 1e-5 / (1.7 + kind));
                row.emplace_back(fine ? "%.7f" : "%.4f", series.spectrum.GetAt(k) * 1e-7);
                row.emplace_back("%.4f", series.structureFunction.GetAt(k) * 1e-5);
            }
            expected += test::plainRow(row, options.separator);
            lag += 0.1;
            frequency += step;
        }
        EXPECT_TRUE(exported(probe, options) == expected)
            << options.header << options.time << static_cast<int>(options.separator);
    }
}

INSTANTIATE_TEST_SUITE_P(Units, SpectralRows, testing::Values(0U, 1U));

}  // namespace
}  // namespace vorlan
