#include "export/VelocitiesExport.h"

#include <gtest/gtest.h>

#include "export/ExportFixture.h"

namespace vorlan {
namespace {

std::string exported(const SAdvProbe& probe, const ExportOptions& options) {
    std::ostringstream stream;
    const std::string name = "run 7";
    writeVelocities(stream, {name, 2, probe}, options);
    return stream.str();
}

SAdvProbe randomProbe(int samples) {
    std::mt19937 random(11);
    SAdvProbe probe;
    probe.samplingInterval = 0.04;
    for (const double scale : {0.001, 0.01, -0.003}) {
        probe.workTables[0].Add(test::randomColumn(random, samples, scale));
    }
    for (int i = 0; i < samples; ++i) {
        probe.sampleFlags.Add(static_cast<int>(random() % 3) - 1);
    }
    return probe;
}

TEST(VelocitiesExport, RowsEqualPlainPrinting) {
    SAdvProbe probe = randomProbe(7000);
    for (const std::uint32_t useAll : {1U, 0U}) {
        probe.useAllSamples = useAll;
        for (const ExportOptions& options : test::allOptions()) {
            std::string expected;
            if (options.header) {
                expected = "FILE  : run 7\nPROBE : 2\nVELOCITIES (U, V, W):\n";
            }
            for (int i = 0; i < 7000; ++i) {
                if (useAll == 0 && probe.sampleFlags.GetAt(i) < 1) {
                    continue;
                }
                std::vector<std::pair<const char*, double>> row;
                if (options.time) {
                    row.emplace_back("%.2f", i * 0.04);
                }
                for (int c = 0; c < 3; ++c) {
                    const SArray& column = probe.workTables[0].GetAt(c);
                    row.emplace_back("%.2f", column.GetAt(i) * column.GetScale());
                }
                expected += test::plainRow(row, options.separator);
            }
            EXPECT_TRUE(exported(probe, options) == expected)
                << options.header << options.time << static_cast<int>(options.separator);
        }
    }
}

}  // namespace
}  // namespace vorlan
