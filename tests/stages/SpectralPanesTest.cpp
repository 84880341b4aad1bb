#include <cmath>
#include <limits>

#include "analysis/AnalysedSeries.h"
#include "analysis/SpectralAnalysis.h"
#include "stages/StageFixture.h"

namespace vorlan {
namespace {

using Texts = std::vector<std::string>;
constexpr Stage kStage = Stage::Spectral;

class SpectralPanes : public StageFixture {
  protected:
    void analyse(int unit = 0) {
        NoProgress progress;
        formAnalysedSeries(probe());
        analyseSpectra(probe(), {50, 1, unit}, progress);
    }
};

TEST_F(SpectralPanes, CorrelationIsDividedByTheVariance) {
    analyse();
    const Diagram d = diagram(kStage, Pane::LeftTop);
    EXPECT_EQ(legends(d), (Texts{"Ux", "Uy", "Uz"}));
    // The divisors N of the function and N - 1 of the variance make lag 0 fall short of one.
    EXPECT_NEAR(d.plot.series[0].y[0], 999.0 / 1000.0, 1e-6);
    EXPECT_DOUBLE_EQ(lastX(d.plot.series[0]), 49 * 0.04);
    EXPECT_FALSE(d.duration.has_value());
}

TEST_F(SpectralPanes, SpectraRunOverFrequenciesOfTheUnit) {
    analyse(0);
    Diagram d = diagram(kStage, Pane::LeftBottom);
    EXPECT_EQ(d.frame.xTitle, "Frequency, Hz");
    EXPECT_DOUBLE_EQ(d.plot.series[2].x.at(1), 1.0 / (2 * 50 * 0.04));
    EXPECT_DOUBLE_EQ(d.plot.series[2].y[3], probe().seriesW.spectrum.GetValue(3));
    EXPECT_EQ(d.allowedScales.size(), 4U);
    EXPECT_EQ(d.frame.scaleType, 1);

    analyse(1);
    d = diagram(kStage, Pane::LeftBottom);
    EXPECT_EQ(d.frame.xTitle, "Frequency, Rad/s");
    EXPECT_DOUBLE_EQ(d.plot.series[2].x.at(1), 3.14 / (50 * 0.04));
    probe().frameAttributes[3].ElementAt(1).xTitle = "Frequency, Hz";
    EXPECT_EQ(diagram(kStage, Pane::LeftBottom).frame.xTitle, "Frequency, Rad/s");
    probe().frameAttributes[3].ElementAt(1).xTitle = "f";
    EXPECT_EQ(diagram(kStage, Pane::LeftBottom).frame.xTitle, "f");
}

TEST_F(SpectralPanes, ValueThatCouldNotBeStoredIsAGap) {
    analyse();
    probe().seriesU.spectrum.SetAt(2, std::numeric_limits<std::int32_t>::min());
    EXPECT_TRUE(std::isnan(diagram(kStage, Pane::LeftBottom).plot.series[0].y[2]));
}

TEST_F(SpectralPanes, SeriesDifferWithoutColour) {
    analyse();
    const Diagram d = diagram(kStage, Pane::RightTop);
    EXPECT_NE(d.plot.series[0].attributes.penStyle, d.plot.series[1].attributes.penStyle);
    EXPECT_NE(d.plot.series[1].attributes.penStyle, d.plot.series[2].attributes.penStyle);
    EXPECT_NE(d.plot.series[0].attributes.colour, d.plot.series[1].attributes.colour);
}

TEST_F(SpectralPanes, TableHoldsScalesIntegralsAndDissipation) {
    probe().resultBlock = {0.5, 1.0, 2.0, 3.0, 10.0, 20.0, 30.0};
    const TableContent t = table(kStage, Pane::RightBottom);
    EXPECT_EQ(t.title, "    Dissipation Rate and Turbulence Scales");
    EXPECT_EQ(t.headers, (Texts{"  ", "Scale, s", "Spectrum", "Dis. Rate"}));
    ASSERT_EQ(t.rows.size(), 3U);
    EXPECT_EQ(t.rows[0].values, (std::vector<double>{1.0, 10.0, 0.5}));
    EXPECT_EQ(t.rows[2].title, "w");
    EXPECT_EQ(t.rows[2].values, (std::vector<double>{3.0, 30.0}));
    EXPECT_TRUE(
        std::holds_alternative<TableContent>(pane(kStage, Pane::RightBottom, PhysicalValue::Velocities, false)));
}

}  // namespace
}  // namespace vorlan
