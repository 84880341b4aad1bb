#include "analysis/Filtration.h"

#include <gtest/gtest.h>

#include <cmath>

#include "Records.h"

namespace vorlan::test {
namespace {

FilterSettings settingsOf(FilterShape shape, FilterType type, double halfWidth, double cutoff = 10.0) {
    FilterSettings settings;
    settings.shape = shape;
    settings.type = type;
    settings.halfWidth = halfWidth;
    settings.cutoff = cutoff;
    return settings;
}

TEST(Filtration, WidthsOnTheLimitsDoNothing) {
    const auto tukey = [](double h) { return settingsOf(FilterShape::Tukey, FilterType::LowPass, h); };
    const auto gaussian = [](double fc, double h = 1.0) {
        return settingsOf(FilterShape::Gaussian, FilterType::LowPass, h, fc);
    };
    struct Row {
        const char* name;
        FilterSettings settings;
        int samples;
        double interval;
        bool run;
        std::vector<std::string> refusals;
    };
    const std::string small = "Filter width too small ! This value should be larger than sampling rate.";
    const std::string large = "Filter width too large ! This value should be smaller than 1/4 time series length.";
    const Row rows[] = {{"a quarter of the record", tukey(2.5), 80, 0.125, false, {}},
                        {"a little below a quarter", tukey(2.49), 80, 0.125, true, {}},
                        {"above a quarter", tukey(2.51), 80, 0.125, false, {large}},
                        {"one sample", tukey(0.04), 1000, 0.04, false, {}},
                        {"half a sample", tukey(0.02), 1000, 0.04, false, {small}},
                        {"negative", tukey(-1.0), 80, 0.125, false, {small}},
                        {"short record", tukey(0.1), 3, 0.125, false, {small, large}},
                        {"empty record", tukey(1.0), 0, 0.04, false, {large}},
                        {"Gaussian", gaussian(10.0), 1000, 0.04, true, {}},
                        {"Gaussian cutoff without a width", gaussian(0.29), 1000, 0.04, false, {large}},
                        {"Gaussian negative cutoff", gaussian(-1.0), 1000, 0.04, false, {large}},
                        {"Gaussian wider than the record", gaussian(0.5, 0.5), 60, 0.04, false, {large}},
                        {"Gaussian just within", gaussian(0.5, 0.5), 61, 0.04, true, {}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const FilterDecision decision = decideFilter(row.settings, row.samples, row.interval);
        EXPECT_EQ(decision.run, row.run);
        EXPECT_EQ(decision.refusals, row.refusals);
    }
}

/// Output j as the formulas say, cosine and exponential anew for every tap.
double plainOutput(const std::vector<double>& x, std::size_t j, const FilterSettings& settings, int m, double f) {
    double sum = 0.0;
    for (std::size_t k = j + 1; k <= j + 2 * static_cast<std::size_t>(m); ++k) {
        const double t = static_cast<double>(static_cast<int>(j) + m - static_cast<int>(k));
        double w = 0.0;
        switch (settings.shape) {
            case FilterShape::Rectangle:
                w = 1.0 / (2 * m + 1);
                break;
            case FilterShape::Tukey:
                w = (std::cos(t * 6.2831852 / (2 * m + 1)) + 1) / (2 * m + 1);
                break;
            case FilterShape::Gaussian:
                w = (f / (std::sqrt(6.2831852) * 0.591)) * std::exp(-(t * t) / (0.698562 / (f * f)));
                break;
            case FilterShape::Bell:
                w = std::sqrt(2.0) * std::exp(3.1415926 * (t * t) / (-2.0 * m * m)) * std::cos(t * 6.2831852 / m) / m;
                break;
        }
        sum += w * x[k];
    }
    switch (settings.type) {
        case FilterType::HighPass:
            return x[j] - sum;
        case FilterType::BandCut:
            return x[j + static_cast<std::size_t>(m)] - sum;
        default:
            return sum;
    }
}

TEST(Filtration, EveryShapeAndTypeStoresThePlainSums) {
    for (const FilterShape shape :
         {FilterShape::Rectangle, FilterShape::Tukey, FilterShape::Gaussian, FilterShape::Bell}) {
        for (const FilterType type :
             {FilterType::LowPass, FilterType::HighPass, FilterType::BandPass, FilterType::BandCut}) {
            const FilterSettings settings = settingsOf(shape, type, 0.5, 1.3);
            SAdvProbe probe = velocityRecord(301, 5);
            const SAdvProbe before = probe;
            // 0.5 s are 12 samples of 0.04 s; the Gaussian's 19 follow from the cutoff.
            const int m = shape == FilterShape::Gaussian ? 19 : 12;
            NoProgress progress;
            filterVelocities(probe, settings, progress);
            for (int c = 0; c < 3; ++c) {
                const std::vector<double> x = before.workTables[0].GetAt(c).Values();
                std::vector<std::int32_t> expected;
                for (std::size_t j = 0; j + 2 * static_cast<std::size_t>(m) < x.size(); ++j) {
                    expected.push_back(static_cast<std::int32_t>(plainOutput(x, j, settings, m, 1.3 * 0.04) /
                                                                 velocity(probe, c).GetScale()));
                }
                EXPECT_EQ(unitsOf(velocity(probe, c)), expected)
                    << "shape " << static_cast<int>(shape) << " type " << static_cast<int>(type);
            }
            EXPECT_EQ(probe.workTables[1], before.workTables[1]);
            EXPECT_EQ(probe.sampleFlags, before.sampleFlags);
        }
    }
}

TEST(Filtration, FormsStressesOfTheShorterRecord) {
    SAdvProbe probe = velocityRecord(100);
    NoProgress progress;
    EXPECT_TRUE(filterSeries(probe, settingsOf(FilterShape::Tukey, FilterType::LowPass, 0.4), progress).run);
    EXPECT_EQ(probe.workTables[SAdvProbe::kStresses].GetAt(2).GetSize(), 80);
    EXPECT_EQ(probe.frameAttributes[0].GetAt(0).plotTitle, "Filtered time series");
    EXPECT_NE(probe.VelocityMoments(0).variance, 0.0);
}

}  // namespace
}  // namespace vorlan::test
