#include "export/ExportKind.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "model/SAdvProbe.h"

namespace vorlan {
namespace {

TEST(ExportKinds, AreFoundByName) {
    std::set<std::string> files;
    for (int i = 0; i < kExportKindCount; ++i) {
        const ExportKindInfo& info = exportKindInfo(static_cast<ExportKind>(i));
        EXPECT_EQ(info.kind, static_cast<ExportKind>(i));
        EXPECT_EQ(exportKindNamed(info.name), info.kind);
        EXPECT_TRUE(files.insert(info.defaultFile).second);
    }
    EXPECT_EQ(exportKindNamed("cross-spectral"), ExportKind::CrossSpectral);
    EXPECT_FALSE(exportKindNamed("Velocities").has_value());
    EXPECT_FALSE(exportKindNamed("").has_value());
}

TEST(ExportKinds, NeedTheResultsOfTheirStage) {
    const std::pair<ExportKind, DoneMark> rows[] = {
        {ExportKind::Stationarity, DoneMark::Stationarity}, {ExportKind::Histograms, DoneMark::Histograms},
        {ExportKind::Spectral, DoneMark::Spectral},         {ExportKind::CrossSpectral, DoneMark::CrossSpectral},
        {ExportKind::Contributions, DoneMark::Quadrants},   {ExportKind::Times, DoneMark::Quadrants},
        {ExportKind::Patterns, DoneMark::Quadrants}};
    for (const auto& [kind, mark] : rows) {
        SAdvProbe probe;
        EXPECT_FALSE(hasResultsFor(kind, probe));
        probe.SetDone(mark);
        EXPECT_TRUE(hasResultsFor(kind, probe));
    }
    for (const ExportKind kind : {ExportKind::Velocities, ExportKind::Statistics, ExportKind::Scales,
                                  ExportKind::Stresses, ExportKind::StressStatistics}) {
        EXPECT_TRUE(hasResultsFor(kind, SAdvProbe()));
    }
}

}  // namespace
}  // namespace vorlan
