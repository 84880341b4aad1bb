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

TEST(VelocitiesExport, LiteralText) {
    SAdvProbe probe;
    probe.samplingInterval = 0.5;
    probe.workTables[0].Reshape(3, 0.001);
    const double rows[2][3] = {{1.0, -0.004, 12.346}, {2.0, 0.0061, -7.0}};
    for (const auto& row : rows) {
        for (int c = 0; c < 3; ++c) {
            probe.workTables[0].ElementAt(c).AddValue(row[c]);
        }
    }
    EXPECT_EQ(exported(probe, {}), "1.00 -0.00 12.35\n2.00 0.01 -7.00\n");
    EXPECT_EQ(exported(probe, {true, true, Separator::Comma}),
              "FILE  : run 7\nPROBE : 2\nVELOCITIES (U, V, W):\n0.00,1.00,-0.00,12.35\n0.50,2.00,0.01,-7.00\n");
    EXPECT_EQ(exported(SAdvProbe(), {true, false, Separator::Tab}),
              "FILE  : run 7\nPROBE : 2\nVELOCITIES (U, V, W):\n");
}

}  // namespace
}  // namespace vorlan
