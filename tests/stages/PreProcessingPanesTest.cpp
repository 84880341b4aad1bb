#include <cmath>

#include "stages/StageFixture.h"

namespace vorlan {
namespace {

using Texts = std::vector<std::string>;
constexpr Stage kStage = Stage::PreProcessing;

class PreProcessingPanes : public StageFixture {};

TEST_F(PreProcessingPanes, RecordsRunOverSampleTimes) {
    const Diagram d = diagram(kStage, Pane::LeftTop);
    EXPECT_EQ(legends(d), (Texts{"Ux", "Uy", "Uz"}));
    EXPECT_EQ(d.frame.plotTitle, "Sampled Velocities");
    ASSERT_EQ(d.plot.series[1].y.size(), 1000U);
    EXPECT_DOUBLE_EQ(d.plot.series[1].y[17], probe().workTables[0].GetAt(1).GetValue(17));
    EXPECT_DOUBLE_EQ(lastX(d.plot.series[1]), 999 * 0.04);
    EXPECT_DOUBLE_EQ(d.duration.value(), 40.0);

    const Diagram stresses = diagram(kStage, Pane::LeftTop, PhysicalValue::Stresses);
    EXPECT_EQ(legends(stresses), (Texts{"u'v'", "u'w'", "v'w'"}));
    EXPECT_EQ(stresses.frame.plotTitle, "Sampled Stresses");
    EXPECT_DOUBLE_EQ(stresses.plot.series[2].y[3], probe().workTables[SAdvProbe::kStresses].GetAt(2).GetValue(3));
}

TEST_F(PreProcessingPanes, UncountedSamplesAreGapsThatKeepTheOthersInPlace) {
    probe().sampleFlags.SetAt(5, 0);
    EXPECT_TRUE(std::isfinite(diagram(kStage, Pane::LeftTop).plot.series[0].y[5]));
    probe().useAllSamples = 0;
    probe().sampleFlags.SetSize(998);  // what lies behind the marks does not count either
    const PlotSeries u = diagram(kStage, Pane::LeftTop).plot.series[0];
    EXPECT_TRUE(std::isnan(u.y[5]));
    EXPECT_TRUE(std::isnan(u.y[998]));
    EXPECT_DOUBLE_EQ(u.y[6], probe().workTables[0].GetAt(0).GetValue(6));
    EXPECT_DOUBLE_EQ(u.x.at(6), 0.24);
    EXPECT_TRUE(std::isnan(diagram(kStage, Pane::LeftBottom).plot.series[0].y[5]));
}

TEST_F(PreProcessingPanes, ReplacedSamplesAreMarkedOnTheirLines) {
    probe().sampleFlags.SetAt(5, 0);
    probe().sampleFlags.SetAt(7, -1);
    const Diagram d = diagram(kStage, Pane::LeftTop);
    EXPECT_EQ(legends(d), (Texts{"Ux", "Uy", "Uz", "Rejected"}));
    const PlotSeries& rejected = d.plot.series[3];
    EXPECT_EQ(rejected.attributes.style, SeriesStyle::Markers);
    ASSERT_EQ(rejected.y.size(), 6U);
    EXPECT_DOUBLE_EQ(rejected.x.at(3), 7 * 0.04);
    EXPECT_DOUBLE_EQ(rejected.y[3], d.plot.series[1].y[7]);
    EXPECT_EQ(legends(diagram(kStage, Pane::LeftTop, PhysicalValue::Stresses)).back(), "Rejected");
    EXPECT_EQ(diagram(kStage, Pane::LeftBottom).plot.series.back().y.size(), 4U);

    // The samples of a shortened record are not those of the marks.
    for (SArray& column : probe().workTables[0]) {
        column.SetSize(900);
    }
    EXPECT_EQ(legends(diagram(kStage, Pane::LeftTop)), (Texts{"Ux", "Uy", "Uz"}));
    probe().useAllSamples = 0;
    EXPECT_EQ(legends(diagram(kStage, Pane::LeftBottom)), (Texts{"Correlation", "SNR"}));
}

TEST_F(PreProcessingPanes, CaptionReplacesTheTitleItBeginsWith) {
    probe().frameAttributes[0].ElementAt(0).plotTitle = "Cleaned-up time series";
    probe().title = "Cleaned-up time series (12 spikes removed)";
    EXPECT_EQ(diagram(kStage, Pane::LeftTop).frame.plotTitle, probe().title);
    probe().frameAttributes[0].ElementAt(0).plotTitle = "Sampled Velocities";
    EXPECT_EQ(diagram(kStage, Pane::LeftTop).frame.plotTitle, "Sampled Velocities");
    probe().frameAttributes[0].ElementAt(0).plotTitle = "";
    EXPECT_EQ(diagram(kStage, Pane::LeftTop).frame.plotTitle, "");
}

TEST_F(PreProcessingPanes, ScoresAreAveragesOverBeams) {
    const Diagram d = diagram(kStage, Pane::LeftBottom);
    EXPECT_EQ(legends(d), (Texts{"Correlation", "SNR"}));
    const SMultiArray& snr = probe().workTables[SAdvProbe::kSignalToNoise];
    EXPECT_NEAR(d.plot.series[1].y[10],
                (snr.GetAt(0).GetValue(10) + snr.GetAt(1).GetValue(10) + snr.GetAt(2).GetValue(10)) / 3, 1e-12);

    // A filter shortens the velocities and leaves the scores.
    for (SArray& column : probe().workTables[0]) {
        column.SetSize(900);
    }
    EXPECT_DOUBLE_EQ(diagram(kStage, Pane::LeftBottom).duration.value(), 40.0);
    EXPECT_DOUBLE_EQ(diagram(kStage, Pane::LeftTop).duration.value(), 36.0);
}

TEST_F(PreProcessingPanes, SaysWhatIsMissing) {
    EXPECT_EQ(legends(diagram(kStage, Pane::RightTop)), (Texts{"Heading", "Pitch", "Roll"}));
    EXPECT_EQ(message(kStage, Pane::RightBottom), "Auxiliary data are not available");
    probe().workTables[SAdvProbe::kWorkPressure].Reshape(1, 0.01);
    probe().workTables[SAdvProbe::kWorkPressure].ElementAt(0).AddValue(101.3);
    EXPECT_EQ(legends(diagram(kStage, Pane::RightBottom)), (Texts{"Pressure"}));
    probe().workTables[SAdvProbe::kWorkCompass].RemoveAll();
    EXPECT_EQ(message(kStage, Pane::RightTop), "Auxiliary data are not available");

    probe().useAllSamples = 0;
    for (std::int32_t& mark : probe().sampleFlags) {
        mark = 0;
    }
    EXPECT_EQ(message(kStage, Pane::LeftBottom), "The data quality scores for all samples are lower than thresholds !");
    EXPECT_EQ(message(kStage, Pane::LeftTop), "No data to plot ! Reset series to continue.");
}

TEST_F(PreProcessingPanes, EmptyRecordAsksForAReset) {
    for (std::size_t t = 0; t < 6; ++t) {
        for (SArray& column : probe().workTables[t]) {
            column.RemoveAll();
        }
    }
    probe().useAllSamples = 0;
    probe().sampleFlags.RemoveAll();
    for (const Pane p : {Pane::LeftTop, Pane::LeftBottom, Pane::RightTop}) {
        for (const PhysicalValue value : {PhysicalValue::Velocities, PhysicalValue::Stresses}) {
            EXPECT_EQ(message(kStage, p, value), "No data to plot ! Reset series to continue.");
        }
    }
}

TEST_F(PreProcessingPanes, StatisticsCompareSampledAndModified) {
    probe().scalarResults[2] = 7.5;   // sampled mean of V
    probe().scalarResults[9] = -0.5;  // sampled skewness of W
    probe().SetVelocityMoments(2, {1.0, 2.0, 3.0, 4.0});
    const TableContent t = table(kStage, Pane::RightBottom);
    EXPECT_EQ(t.title, "    Main Statistical Characteristics (sampled and transformed)");
    EXPECT_EQ(t.headers, (Texts{"  ", "Mean", "Variance", "Skewness", "Kurtosis"}));
    ASSERT_EQ(t.rows.size(), 6U);
    EXPECT_EQ(t.rows[1].title, "Sampled V");
    EXPECT_EQ(t.rows[1].values[0], 7.5);
    EXPECT_EQ(t.rows[2].values.size(), 3U);
    EXPECT_EQ(t.rows[2].values[2], -0.5);
    EXPECT_EQ(t.rows[5].title, "Modified W");
    EXPECT_EQ(t.rows[5].values, (std::vector<double>{1.0, 2.0, 3.0, 4.0}));
}

TEST_F(PreProcessingPanes, MissingFramesComeFromDefaultsAndNothingIsWritten) {
    for (SFrameAtrArray& frames : probe().frameAttributes) {
        frames.RemoveAll();
    }
    const SAdvProbe before = probe();
    EXPECT_EQ(diagram(kStage, Pane::LeftBottom).frame.plotTitle, "Correlation and SNR Scores");
    EXPECT_EQ(probe(), before);
}

TEST_F(PreProcessingPanes, NoProbeShowsNothing) {
    for (const auto& [file, number] : {std::pair{-1, 0}, {0, -1}, {0, 1}, {1, 0}}) {
        EXPECT_TRUE(std::holds_alternative<std::monostate>(describePane({workspace, file, number})));
    }
}

}  // namespace
}  // namespace vorlan
