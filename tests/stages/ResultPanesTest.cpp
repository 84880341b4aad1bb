#include <cmath>

#include "analysis/AnalysedSeries.h"
#include "analysis/CrossSpectralAnalysis.h"
#include "analysis/Histogram.h"
#include "analysis/Quadrants.h"
#include "analysis/SpectralAnalysis.h"
#include "analysis/Stationarity.h"
#include "stages/StageFixture.h"

namespace vorlan {
namespace {

using Texts = std::vector<std::string>;
constexpr std::array<Pane, kPaneCount> kPanes = {Pane::LeftTop, Pane::LeftBottom, Pane::RightTop, Pane::RightBottom};
constexpr PhysicalValue kStresses = PhysicalValue::Stresses;

class ResultPanes : public StageFixture {
  protected:
    NoProgress progress;
};

TEST_F(ResultPanes, BandsStandAtTheirMiddleOrTheirEnd) {
    analyseStationarity(probe(), {BandMode::Fixed, 10}, progress);
    Diagram d = diagram(Stage::Stationarity, Pane::LeftBottom);
    EXPECT_EQ(d.frame.plotTitle, "Velocity Variance");
    EXPECT_EQ(legends(d), (Texts{"Ux", "Uy", "Uz"}));
    EXPECT_DOUBLE_EQ(d.plot.series[0].x.at(0), 2.0);
    EXPECT_DOUBLE_EQ(lastX(d.plot.series[0]), 38.0);
    EXPECT_DOUBLE_EQ(d.plot.series[2].y[4], probe().seriesW.bandVariances.GetValue(4));

    analyseStationarity(probe(), {BandMode::Cumulative, 10}, progress);
    d = diagram(Stage::Stationarity, Pane::RightBottom, kStresses, true);
    EXPECT_EQ(d.frame.plotTitle, "Velocity Kurtosis");
    EXPECT_DOUBLE_EQ(d.plot.series[0].x.at(0), 4.0);
    EXPECT_DOUBLE_EQ(d.plot.series[1].y[9], probe().seriesV.bandKurtosis.GetValue(9));
}

TEST_F(ResultPanes, HistogramBarsCoverTheRangeOfTheSamples) {
    workspace.settings.barWidth = 70;
    analyseDistributions(probe(), {8, 70, true}, progress);
    const Diagram d = diagram(Stage::Histograms, Pane::LeftBottom, PhysicalValue::Velocities, true);
    EXPECT_EQ(d.frame.plotTitle, "Transverse Velocity");
    EXPECT_EQ(legends(d), (Texts{"Uy", "Normal"}));
    const PlotSeries& bars = d.plot.series[0];
    EXPECT_EQ(bars.attributes.style, SeriesStyle::Bars);
    EXPECT_EQ(bars.attributes.barGapPercent, 30.0);
    ASSERT_EQ(bars.x.values.size(), 9U);
    ASSERT_EQ(bars.y.size(), 8U);
    const std::vector<double> v = countedValues(probe(), probe().workTables[0].GetAt(1));
    EXPECT_DOUBLE_EQ(bars.x.values.front(), *std::min_element(v.begin(), v.end()));
    EXPECT_NEAR(bars.x.values.back(), *std::max_element(v.begin(), v.end()), 1e-9);
    EXPECT_DOUBLE_EQ(bars.y[3], probe().seriesV.histogram.GetValue(3));
    EXPECT_EQ(d.plot.series[1].y.size(), 500U);

    const Diagram all = diagram(Stage::Histograms, Pane::RightBottom);
    EXPECT_EQ(legends(all), (Texts{"Ux", "Uy", "Uz"}));
    EXPECT_NEAR(all.plot.series[1].x.at(2), 0.5 * (bars.x.values[2] + bars.x.values[3]), 1e-9);

    workspace.settings.normalApproximation = 0;
    EXPECT_EQ(legends(diagram(Stage::Histograms, Pane::LeftTop)), (Texts{"Ux"}));
}

TEST_F(ResultPanes, MomentTablesFollowThePhysicalValue) {
    analyseDistributions(probe(), {8, 90, true}, progress);
    TableContent t = table(Stage::Histograms, Pane::RightBottom);
    EXPECT_EQ(t.title, "    Statistical moments of velocity distributions");
    EXPECT_EQ(t.rows[1].title, "V");
    EXPECT_EQ(t.rows[1].values[1], probe().seriesV.moments.variance);

    t = table(Stage::Histograms, Pane::RightBottom, kStresses);
    EXPECT_EQ(t.title, "    Statistical moments of stresses distributions");
    EXPECT_EQ(t.rows[2].title, "v'w'");
    EXPECT_DOUBLE_EQ(t.rows[2].values[3], probe().StressMoments(2).kurtosis);
    // Marks that changed since count at once.
    probe().useAllSamples = 0;
    probe().sampleFlags.SetAt(0, 0);
    EXPECT_NE(table(Stage::Histograms, Pane::RightBottom, kStresses).rows[0].values[0], probe().StressMoments(0).mean);
}

TEST_F(ResultPanes, QuadrantsRunOverTheHoleSizesOfTheLastRun) {
    analyseQuadrants(probe(), {0.5, 10.0, 0.5, 0.5, 2.0, 2}, progress);
    workspace.settings.holeIncrement = 0.1;
    const Diagram d = diagram(Stage::Quadrants, Pane::RightTop);
    EXPECT_EQ(d.frame.plotTitle, "Fractional Times");
    EXPECT_EQ(legends(d), (Texts{"1", "2", "3", "4", "Hole"}));
    EXPECT_DOUBLE_EQ(lastX(d.plot.series[4]), 9.5);
    double sum = 0.0;
    for (const PlotSeries& series : d.plot.series) {
        sum += series.y[5];
    }
    EXPECT_NEAR(sum, 1.0, 1e-4);

    const Diagram sweep = diagram(Stage::Quadrants, Pane::RightBottom);
    EXPECT_EQ(legends(sweep), (Texts{"Uy", "Uz"}));
    EXPECT_DOUBLE_EQ(sweep.plot.series[0].x.at(0), -2.0);
    EXPECT_DOUBLE_EQ(lastX(sweep.plot.series[1]), 2.0);
    probe().quadrantStress = 77;  // as a damaged workspace may hold it
    EXPECT_EQ(legends(diagram(Stage::Quadrants, Pane::LeftBottom)), (Texts{"Uy", "Uz"}));
}

TEST_F(ResultPanes, CrossSpectraOfVelocitiesAndStresses) {
    formAnalysedSeries(probe());
    analyseSpectra(probe(), {40, 1, 0}, progress);
    analyseCrossSpectra(probe(), progress);
    const SMultiArray& forward = probe().workTables[SAdvProbe::kCrossForward];
    const SMultiArray& backward = probe().workTables[SAdvProbe::kCrossBackward];

    Diagram d = diagram(Stage::CrossSpectral, Pane::LeftTop);
    EXPECT_EQ(legends(d), (Texts{"u'-v'", "u'-w'", "v'-w'"}));
    ASSERT_EQ(d.plot.series[1].y.size(), 79U);
    EXPECT_DOUBLE_EQ(d.plot.series[1].x.at(0), -39 * 0.04);
    EXPECT_NEAR(d.plot.series[1].x.at(39), 0.0, 1e-12);
    const double norm = std::sqrt(probe().statistics[12] * probe().statistics[14]);
    EXPECT_NEAR(d.plot.series[1].y[0], backward.GetAt(1).GetValue(39) / norm, 1e-12);
    EXPECT_NEAR(d.plot.series[1].y[41], forward.GetAt(1).GetValue(2) / norm, 1e-12);

    d = diagram(Stage::CrossSpectral, Pane::LeftTop, kStresses);
    EXPECT_EQ(legends(d), (Texts{"-u'v'", "-u'w'", "-v'w'"}));
    EXPECT_DOUBLE_EQ(d.plot.series[0].y[40], -forward.GetAt(0).GetValue(1));

    const double co = probe().workTables[SAdvProbe::kCoSpectra].GetAt(2).GetValue(5);
    const double quadrature = probe().workTables[SAdvProbe::kQuadratureSpectra].GetAt(2).GetValue(5);
    d = diagram(Stage::CrossSpectral, Pane::LeftBottom);
    EXPECT_EQ(d.frame.xTitle, "Frequency, Hz");
    EXPECT_DOUBLE_EQ(d.plot.series[2].y[5], std::hypot(co, quadrature));
    EXPECT_DOUBLE_EQ(d.plot.series[2].x.at(5), 5.0 / (2 * 40 * 0.04));
    EXPECT_DOUBLE_EQ(diagram(Stage::CrossSpectral, Pane::LeftBottom, kStresses).plot.series[2].y[5], -co);

    d = diagram(Stage::CrossSpectral, Pane::RightBottom, kStresses);
    EXPECT_EQ(legends(d), (Texts{"u'-v'", "u'-w'", "v'-w'"}));
    EXPECT_EQ(d.plot.series[0].y.size(), 39U);
    EXPECT_DOUBLE_EQ(d.plot.series[0].x.at(5), 5.0 / (2 * 40 * 0.04));
    EXPECT_EQ(d.plot.series[0].attributes.style, SeriesStyle::Markers);
}

TEST_F(ResultPanes, AxesOfWhatIsNeverNegativeBeginAtZeroUnlessTheUserSaysElse) {
    analyseDistributions(probe(), {8, 90, true}, progress);
    Diagram d = diagram(Stage::Histograms, Pane::LeftTop);
    EXPECT_EQ(d.frame.yMinMode, 1);
    EXPECT_EQ(d.frame.yMin, 0.0);
    EXPECT_EQ(d.frame.xMinMode, 0);
    FrameAttributesType& stored = probe().frameAttributes[2].ElementAt(0);
    EXPECT_EQ(stored.yMinMode, 0);
    stored.yMinMode = 1;
    stored.yMin = -2.0;
    EXPECT_EQ(diagram(Stage::Histograms, Pane::LeftTop).frame.yMin, -2.0);
}

TEST_F(ResultPanes, DamagedResultsNeverLeaveAnExceptionToThePainter) {
    formAnalysedSeries(probe());
    analyseStationarity(probe(), {BandMode::Fixed, 10}, progress);
    analyseDistributions(probe(), {8, 90, true}, progress);
    analyseSpectra(probe(), {40, 1, 0}, progress);
    analyseCrossSpectra(probe(), progress);
    analyseQuadrants(probe(), {}, progress);
    const auto describeAll = [this] {
        for (int stage = 0; stage < kStageCount; ++stage) {
            for (int number = 0; number <= kPaneCount; ++number) {
                for (const PhysicalValue value : {PhysicalValue::Velocities, kStresses}) {
                    for (const bool showTable : {false, true}) {
                        EXPECT_NO_THROW(pane(static_cast<Stage>(stage), static_cast<Pane>(number), value, showTable))
                            << "stage " << stage << " pane " << number;
                    }
                }
            }
        }
    };
    const SAdvProbe whole = probe();
    const auto damage = [](SMultiArray& table, int column) {
        if (column < table.GetSize()) {
            table.ElementAt(column) = SArray();
        }
    };
    for (const int column : {0, 1, 2}) {
        for (SMultiArray& table : probe().workTables) {
            damage(table, column);
        }
        describeAll();
        for (SMultiArray& table : probe().stageTables) {
            damage(table, column);
        }
        probe().Series(column) = STimeSeries();
        describeAll();
        probe() = whole;
    }
    EXPECT_EQ(message(Stage::Stationarity, static_cast<Pane>(kPaneCount)), "Encountered an improper argument.");
}

TEST_F(ResultPanes, WithoutResultsThereIsNothingToPlot) {
    for (const Stage stage : {Stage::Stationarity, Stage::Histograms, Stage::Quadrants, Stage::CrossSpectral}) {
        for (const Pane p : kPanes) {
            EXPECT_EQ(message(stage, p), "No data to plot ! Reset series to continue.");
        }
    }
}

}  // namespace
}  // namespace vorlan
